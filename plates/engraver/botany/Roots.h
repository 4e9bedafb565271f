#pragma once

#include "plates/engraver/Plate.h"

namespace tambrelle::engraver {

/// Hair roots: `count` of them fanned over `spread` degrees about the direction `degrees`, about `length`
/// units long.
void rootlets(Plate& plate, Point from, int count, double degrees, double spread, double length,
              double width = 0.7);

struct TendrilForm {
    double length = 30;
    double turns = 2.2;
    double radius = 9;
    double width = 0.9;
    /// +1 curls to the right of its way, -1 to the left.
    int hand = 1;
    Palette palette = palettes::leafy;
};
/// A curling tendril that leaves `from` in the direction `degrees`.
void tendril(Plate& plate, Point from, double degrees, const TendrilForm& form = {});

} // namespace tambrelle::engraver
