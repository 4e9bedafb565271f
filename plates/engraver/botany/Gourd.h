#pragma once

#include "plates/engraver/Plate.h"
#include "plates/engraver/botany/RootVegetable.h"

namespace tambrelle::engraver {

/// A ribbed pumpkin, squash or melon standing on the ground, its stalk on top.
struct GourdForm {
    /// Half breadth and half height.
    double width = 96;
    double height = 58;
    int ribs = 7;
    /// How deep the furrows cut: 1 pumpkin, 0.4 melon.
    double depth = 1;
    Palette palette = palettes::orange;
    /// Leaning of the stalk to the left (-1) or right (1), and its height.
    double stalkLean = -1;
    double stalk = 50;
    Palette stalkPalette = palettes::stem;
    /// Net of corky lines (melon); wide stripes of this palette between the ribs (watermelon).
    bool netted = false;
    std::optional<Palette> stripes = std::nullopt;
};
/// Centre of the fruit at `centre`. Gives the foot of the stalk.
Point gourd(Plate& plate, Point centre, const GourdForm& form = {});

/// A long fruit lying or hanging: cucumber, aubergine, pepper. Warts along it if wanted.
struct LongFruitForm {
    Profile radius = {10, 19, 21, 20, 17, 9};
    Palette palette = palettes::darkleaf;
    int warts = 0;
    int stripes = 0;
    double highlight = 0.16;
};
void longFruit(Plate& plate, const Path& spine, const LongFruitForm& form = {});

/// A wedge cut from a round fruit, lying on its rind: melon, watermelon, pumpkin.
struct WedgeForm {
    double radius = 52;
    Palette rind = palettes::leaf;
    Palette flesh = palettes::red;
    double rindWidth = 0.12;
    int seeds = 9;
    Palette seed = palettes::black;
    /// Hollow middle with strings (melon, pumpkin).
    bool hollow = false;
    double turn = 0;
};
void wedge(Plate& plate, Point centre, const WedgeForm& form = {});

} // namespace tambrelle::engraver
