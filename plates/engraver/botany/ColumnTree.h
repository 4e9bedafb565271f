#pragma once

#include "plates/engraver/Plate.h"
#include "plates/engraver/Profile.h"

namespace tambrelle::engraver {

/// A slender tree whose boughs all rise along the trunk (cypress, Lombardy poplar): a flame of upward sprays.
struct ColumnTreeForm {
    double height = 250;
    /// Half breadth of the crown from its foot to its top, in units.
    Profile crown = {16, 28, 32, 30, 26, 18, 3};
    /// Share of the height that is bare trunk.
    double bole = 0.07;
    double trunk = 6;
    Palette palette = palettes::darkleaf;
    Palette bark = palettes::bark;
    /// Length of a spray, and how far sprays at the rim lean outward, degrees.
    double spray = 26;
    double lean = 16;
};
void columnTree(Plate& plate, Point foot, const ColumnTreeForm& form = {});

} // namespace tambrelle::engraver
