#pragma once

#include "plates/engraver/Relief.h"

namespace tambrelle::engraver {

/// Tone of a polished liquid that mirrors a room: bright sky above, a dark band for the horizon, light ground
/// below.
double mirrorTone(Vector3 normal);

/// A bead or pool of a shining liquid: quicksilver, pitch. `bevel` is the breadth of its rounded rim.
void liquid(Plate& plate, const Path& outline, double bevel, const Palette& palette = palettes::mercury,
            double tone = 0);
/// A bead that lies, flattened by its weight, with its glints.
void bead(Plate& plate, Point centre, double halfWidth, double halfHeight,
          const Palette& palette = palettes::mercury);

} // namespace tambrelle::engraver
