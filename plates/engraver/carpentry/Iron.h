#pragma once

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Relief.h"
#include "plates/engraver/carpentry/Placement.h"

namespace tambrelle::engraver {

/// A forged head: a plate of iron whose edges are bevelled `bevel` units wide.
struct ForgedForm {
    double bevel = 6;
    /// Rise of the bevel; below 1 a thin plate.
    double heightScale = 0.6;
    double tone = 0.06;
    Palette palette = palettes::iron;
    /// Direction of the hatching's planes.
    Vector3 lines{0.75, -0.45, 0.5};
    double contour = 1;
};
ReliefSurface forged(Plate& plate, const Path& outline, const ForgedForm& form = {});

/// A ring, ferrule or socket about a handle between two points.
void ferrule(Plate& plate, Point from, Point to, const Profile& radius,
             const Palette& palette = palettes::iron);

/// A short handle turned on the lathe, `length` units from `from` in the direction `degrees`; `radius` from
/// there to its butt.
void turnedHandle(Plate& plate, Point from, double degrees, double length, const Profile& radius,
                  const Palette& palette = palettes::wood);

} // namespace tambrelle::engraver
