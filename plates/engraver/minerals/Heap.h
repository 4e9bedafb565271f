#pragma once

#include "plates/engraver/minerals/Stone.h"

namespace tambrelle::engraver {

/// A heap of loose stuff on the ground: earth, salt, dung, plaster. `foot` is the middle of its foot; it is
/// `halfWidth` broad to either side and `height` high; `peak` (0 a dome ... 1 a sharp cone) its steepness.
ReliefSurface heap(Plate& plate, Point foot, double halfWidth, double height, double peak,
                   const StoneForm& form = {});
/// Straws sticking out of a heap every way, thickest at its edge.
void straws(Plate& plate, const ReliefSurface& heap, int count, double longest,
            const Palette& palette = palettes::straw);

} // namespace tambrelle::engraver
