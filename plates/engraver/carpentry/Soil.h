#pragma once

#include "plates/engraver/Plate.h"

namespace tambrelle::engraver {

/// A heap of turned earth, broken into clods, within an ellipse.
void soil(Plate& plate, Point centre, double radiusX, double radiusY);

} // namespace tambrelle::engraver
