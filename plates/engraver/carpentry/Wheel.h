#pragma once

#include "plates/engraver/Plate.h"

namespace tambrelle::engraver {

/// A spoked wheel of felloes with an iron tyre.
struct WheelForm {
    double radius = 40;
    /// Breadth over height: 1 seen square on.
    double squash = 0.88;
    int spokes = 10;
    /// Breadth of the felloes, in units, and radius of the hub as a share of the wheel's.
    double rim = 6;
    double hub = 0.17;
    /// From the near face to the far one on the plate: the tyre's thickness.
    Point depth{6, 0.6};
    double turned = 12;
};
void wheel(Plate& plate, Point centre, const WheelForm& form = {});

} // namespace tambrelle::engraver
