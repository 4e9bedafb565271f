#pragma once

#include "plates/engraver/zoology/Quadruped.h"

namespace tambrelle::engraver {

/// A goat standing, without horns, beard, udder and colour.
Quadruped goat();
/// A sheep standing, without fleece and horns.
Quadruped sheep();

/// Ragged locks hanging along the flank between two places, `length` units long.
void hangingCoat(Plate& plate, Point from, Point to, double length, const Palette& palette, double tone);

} // namespace tambrelle::engraver
