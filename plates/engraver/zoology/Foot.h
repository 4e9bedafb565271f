#pragma once

#include "plates/engraver/Plate.h"

namespace tambrelle::engraver {

/// What an animal stands on.
enum class Foot { hoof, cloven, paw };

/// A hoof whose sole lies at `sole` (the middle of it), toe to the left; `width` is half its breadth at the
/// coronet in units.
struct HoofForm {
    double width = 5.6;
    double height = 9;
    Palette palette = palettes::black;
    double tone = 0.55;
    bool cloven = false;
};
void hoof(Plate& plate, Point sole, const HoofForm& form = {});

/// The toes of a paw whose sole lies at `sole`: the lines between them and the claws, toe to the left.
struct PawForm {
    /// Length of the foot before the ankle, in units.
    double length = 11;
    double height = 7;
    int toes = 4;
    /// Length of the claws; 0 when they are drawn in (cats).
    double claws = 1.8;
};
void toes(Plate& plate, Point sole, const PawForm& form = {});

} // namespace tambrelle::engraver
