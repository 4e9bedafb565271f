#pragma once

#include "plates/engraver/Relief.h"

namespace tambrelle::engraver {

/// A fossil cockle of the given radius: ribs spread from its beak towards `degrees`.
void cockle(Plate& plate, Point centre, double radius, double degrees,
            const Palette& palette = palettes::chalk);

/// A fossil ammonite: a ribbed spiral of about three whorls, seen from the side.
void ammonite(Plate& plate, Point centre, double radius, const Palette& palette = palettes::chalk);

} // namespace tambrelle::engraver
