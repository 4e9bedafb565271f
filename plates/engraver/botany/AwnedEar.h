#pragma once

#include "plates/engraver/Plate.h"
#include "plates/engraver/Profile.h"

#include <vector>

namespace tambrelle::engraver {

/// An ear whose every grain bears an awn (barley, rye): ranks of grains along an axis of any bend.
struct AwnedEarForm {
    /// Joints of the axis; each bears a grain of every rank.
    int joints = 13;
    /// Where the seen ranks stand across the ear, back to front: -1 its left edge, 1 its right, 0 facing us.
    std::vector<double> ranks = {-1, 1};
    /// From the axis to the outer ranks' feet, in units.
    double breadth = 0;
    /// Length of a grain in units, half its breadth as a share of that, its lean out of the axis in degrees
    /// at the foot of the ear (about half at the tip).
    double grain = 30;
    double plumpness = 0.26;
    double lean = 26;
    /// Length of grains from the foot of the ear to its tip, as a share of `grain`.
    Profile taper = {0.86, 1, 1, 0.92, 0.74};
    /// Length of the awns at the foot and at the tip, in units.
    Profile awn = {110, 80};
    /// How far the awns of the outer ranks stand out at the foot and at the tip of the ear, degrees.
    Profile awnLean = {12, 8};
    /// Unevenness of the awns' directions, degrees.
    double scatter = 1.5;
    double awnWidth = 1;
    Palette palette;
};
/// Along the spline through `spine`, from the base of the ear to its tip. Draw the stalk before.
void awnedEar(Plate& plate, const Path& spine, const AwnedEarForm& form);

/// A single grain in its husk, base at `at`.
void huskedGrain(Plate& plate, Point at, double degrees, double length, double halfBreadth,
                 const Palette& palette, double tone = 0);

/// Grains about the axis as an ear cut across shows them; each turned outwards.
struct EarSectionForm {
    /// Directions of the grains, degrees.
    std::vector<double> grains;
    double length = 34;
    /// Half breadth of a grain.
    double width = 9;
    Palette palette;
};
void earSection(Plate& plate, Point centre, const EarSectionForm& form);

} // namespace tambrelle::engraver
