#pragma once

#include "plates/engraver/botany/Inflorescence.h"

namespace tambrelle::engraver {

enum class Arrangement { alternate, opposite, whorled, none };
enum class RootKind { none, fibrous, taproot, bulb, rhizome };

/// A whole flowering plant, standing on its root: stems with leaves and an inflorescence on each.
struct HerbForm {
    /// Where it stands, and how high, in units.
    Point foot{200, 340};
    double height = 200;
    /// One stem for each; how far its tip stands to the side, in units. Side stems are a little shorter.
    std::vector<double> stems = {0};
    double stemRadius = 2.6;
    double tipRadius = 1.6;
    Palette stemPalette = palettes::stem;
    /// Hairs or prickles on the stems.
    int hairs = 0;
    Colour hairColour = sepia;
    LeafKind leaf = {};
    Arrangement arrangement = Arrangement::alternate;
    /// Nodes with leaves, on this share of the stem.
    int leaves = 4;
    double leavesFrom = 0.12;
    double leavesTo = 0.62;
    /// Length and half breadth of the lowest and of the highest leaf; their angle from the stem in degrees.
    double leafLength = 58;
    double topLeafLength = 34;
    double leafWidth = 17;
    double topLeafWidth = 10;
    double leafAngle = 52;
    /// Leaves at the foot, fanned over `basalSpread` degrees to each side.
    int basal = 0;
    double basalLength = 60;
    double basalWidth = 17;
    double basalSpread = 74;
    /// Basal leaves of another kind than those of the stem.
    std::optional<LeafKind> basalLeaf = std::nullopt;
    RootKind root = RootKind::none;
    Palette rootPalette = palettes::root;
    Inflorescence inflorescence = {};
};
void herb(Plate& plate, const HerbForm& form);

/// A bulb or corm with its neck at `top` and its hair roots; `width` is its radius.
void bulb(Plate& plate, Point top, double width, double height, const Palette& palette = palettes::root);

} // namespace tambrelle::engraver
