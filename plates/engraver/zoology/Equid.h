#pragma once

#include "plates/engraver/zoology/Quadruped.h"

namespace tambrelle::engraver {

/// A horse at the walk, without mane, tail and colour; donkeys and mules are made from it.
Quadruped equid();

} // namespace tambrelle::engraver
