#pragma once

#include "plates/engraver/Plate.h"

namespace tambrelle::engraver {

/// A downy stone fruit with a seam from its stalk to its tip: peach, apricot.
struct StoneFruitForm {
    Palette skin = palettes::orange;
    /// Colour of the sunny cheek, and how strong it is, from 0 to 1.
    Colour cheek = 0xC8432A;
    double blush = 0.5;
    /// Inside: the flesh, the flesh next to the stone, and the stone.
    Palette flesh = palettes::orange;
    Colour heart = 0xF4B45A;
    Palette stone = palettes::brown;
    /// Pits and furrows of the stone; 0: smooth with a keel (apricot).
    int furrows = 0;
};
/// The whole fruit about `centre`, hung by a stalk from `from`.
void stoneFruit(Plate& plate, Point from, Point centre, double radius, const StoneFruitForm& form = {});
/// A half with the stone in it, seen into; `radius` is half its breadth.
void stoneFruitHalf(Plate& plate, Point centre, double radius, const StoneFruitForm& form = {});

} // namespace tambrelle::engraver
