#pragma once

#include "plates/engraver/Plate.h"

namespace tambrelle::engraver {

/// The ground under a standing thing: broken level strokes and a pale shadow, all beneath what is drawn
/// already. Between `left` and `right` at the height `y`; `rows` of strokes, 2.3 units apart.
void ground(Plate& plate, double left, double right, double y, int rows = 5);
/// Tufts of grass upon it.
void grassTufts(Plate& plate, double left, double right, double y, int count = 8);
/// Level ripples of still water.
void waterLines(Plate& plate, double left, double right, double y, int rows = 6);

} // namespace tambrelle::engraver
