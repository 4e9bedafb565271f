#pragma once

#include "plates/engraver/Plate.h"
#include "plates/engraver/Profile.h"

namespace tambrelle::engraver {

/// A mass of foliage: a rounded cloud with leaf marks.
void foliageClump(Plate& plate, Point centre, double radiusX, double radiusY,
                  const Palette& palette = palettes::leaf, double mark = 2.8, double tone = 0);

/// A small whole tree beside a twig: its crown filled with clumps.
struct HabitForm {
    double height = 200;
    /// Half breadth of the crown from its foot to its top, in units.
    Profile crown = {12, 26, 30, 28, 22, 12, 3};
    /// Share of the height that is bare trunk.
    double bole = 0.14;
    double trunk = 6;
    Palette bark = palettes::bark;
    Palette palette = palettes::leaf;
    /// Size of a clump as a share of the crown's half breadth.
    double clump = 0.45;
    /// Flat tiers with gaps (cedar, pine) instead of a full crown.
    int tiers = 0;
};
void treeHabit(Plate& plate, Point foot, const HabitForm& form = {});

/// A section of trunk or bough: bark by its marks.
struct TrunkForm {
    enum class Bark { furrowed, birch, plane, smooth, cork } bark = Bark::furrowed;
    Palette palette = palettes::bark;
};
void trunk(Plate& plate, Point foot, Point top, double radius, const TrunkForm& form = {});

} // namespace tambrelle::engraver
