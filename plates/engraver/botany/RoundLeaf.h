#pragma once

#include "plates/engraver/Plate.h"

namespace tambrelle::engraver {

/// A broad leaf whose veins spread from the bay where its stalk joins: heart (cyclamen, violet) or kidney
/// (wild ginger).
struct RoundLeafForm {
    /// Half the breadth over the length from the bay to the tip: 0.7 a heart, 1.1 a kidney.
    double breadth = 0.7;
    /// How far the lobes reach back beyond the bay, as a share of the length.
    double bay = 0.35;
    /// Pointed 1 or round 0 at the tip.
    double point = 0.3;
    Palette palette = palettes::darkleaf;
    /// Pale marbling in a ring between middle and rim, from 0 to 1.
    double marbling = 0;
    /// Teeth round the whole rim and their height in units.
    int teeth = 0;
    double toothHeight = 1;
};
/// The bay is at `at`; `size` is the length from there to the tip, which lies in the direction `degrees`.
/// Gives the outline.
Path roundLeaf(Plate& plate, Point at, double degrees, double size, const RoundLeafForm& form = {});

} // namespace tambrelle::engraver
