#pragma once

#include "plates/engraver/Plate.h"

namespace tambrelle::engraver {

/// A mass of foliage: a rounded cloud with leaf marks.
void foliageClump(Plate& plate, Point centre, double radiusX, double radiusY,
                  const Palette& palette = palettes::leaf, double mark = 2.8, double tone = 0);

/// A section of trunk or bough: bark by its marks.
struct TrunkForm {
    enum class Bark { furrowed, birch, plane, smooth, cork } bark = Bark::furrowed;
    Palette palette = palettes::bark;
};
void trunk(Plate& plate, Point foot, Point top, double radius, const TrunkForm& form = {});

} // namespace tambrelle::engraver
