#pragma once

#include "plates/engraver/zoology/Quadruped.h"

namespace tambrelle::engraver {

/// Cattle standing: deep level trunk, dewlap, cloven feet; without horns, udder, tail and colour.
Quadruped cattle();

/// A tail hanging from the rump with a tuft at its end.
void tuftedTail(Plate& plate, const Path& spine, double radius, const Palette& skin, const Palette& tuft);

} // namespace tambrelle::engraver
