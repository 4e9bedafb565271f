#pragma once

#include "plates/engraver/Plate.h"

namespace tambrelle::engraver {

/// An animal's eye: dark and wet, with a light in it and lids that follow the head.
struct EyeForm {
    enum class Pupil { round, bar, slit };
    /// Radius of what the lids leave open, in units.
    double radius = 2.4;
    /// Colour round the pupil; sepia for eyes that are all dark.
    Colour iris = sepia;
    Pupil pupil = Pupil::round;
    /// Share of the radius that the pupil takes.
    double pupilSize = 0.6;
    /// Direction from the outer to the inner corner, degrees: 180 level, looking left.
    double degrees = 180;
    /// Height over breadth.
    double open = 0.86;
    /// Weight of the upper lid in units; 0 for birds and fish, whose eyes are rings.
    double lid = 0.9;
};

void eye(Plate& plate, Point centre, const EyeForm& form = {});

} // namespace tambrelle::engraver
