#pragma once

#include "plates/engraver/Plate.h"
#include "plates/engraver/Profile.h"

namespace tambrelle::engraver {

/// A lock of long hair: mane, tail, beard, forelock.
struct LockForm {
    Palette palette = palettes::black;
    /// How many strands are drawn in it.
    int strands = 24;
    double tone = 0.72;
    double contour = 0.5;
    double halo = 0.3;
    double shade = 0.2;
};

/// Draws strands along the spline through `spine`; `width` is half the breadth of the lock in units, root to
/// tip.
void lock(Plate& plate, const Path& spine, const Profile& width, const LockForm& form = {});

/// A crest of locks hanging off the spline through `crest` (a mane). `fall` is where the tip of the first and
/// of the last lock lies from its root; they get longer by `belly` units half way.
struct ManeForm {
    int locks = 14;
    Point fallFirst{-9, 16};
    Point fallLast{-4, 16};
    double belly = 12;
    double width = 2.6;
    LockForm lock = {.strands = 7, .tone = 0.76, .halo = 0.15};
};
void mane(Plate& plate, const Path& crest, const ManeForm& form = {});

} // namespace tambrelle::engraver
