#pragma once

#include "plates/engraver/Plate.h"

namespace tambrelle::engraver {

/// Loose straw heaped within an ellipse: `count` stalks, mostly level.
struct StrawForm {
    int count = 90;
    double length = 34;
    /// Spread of the stalks' directions about the level, degrees.
    double spread = 35;
    double radius = 0.9;
    Palette palette = palettes::straw;
};
void straw(Plate& plate, Point centre, double radiusX, double radiusY, const StrawForm& form = {});

/// Scattered grains of corn within an ellipse.
void grains(Plate& plate, Point centre, double radiusX, double radiusY, int count, double size = 2.6);

} // namespace tambrelle::engraver
