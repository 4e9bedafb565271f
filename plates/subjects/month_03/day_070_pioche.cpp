#include "plates/engraver/Subject.h"
#include "plates/engraver/carpentry/Iron.h"
#include "plates/engraver/carpentry/Wood.h"

using namespace tambrelle::engraver;

// The pickaxe: one arc of iron with a point at either end, on a straight helve through its eye.
static const Subject subject{
    "day_070_pioche", [](Plate& p) {
        const Placement lie{{84, 298}, -42};
        const Path helve = pole(p, lie.at({{0, 0}, {80, 1}, {160, -1}, {262, 0}}), {7.5, 6.5, 6.5, 8});
        const Path back =
            spline(lie.at({{186, -118}, {222, -74}, {244, -28}, {249, 0}, {244, 28}, {222, 74}, {186, 118}}));
        const Path belly = spline(lie.at(
            {{186, -118}, {208, -66}, {222, -24}, {217, -14}, {217, 14}, {222, 24}, {208, 66}, {186, 118}}));
        forged(p, band(back, belly), {.bevel = 11, .heightScale = 0.9, .tone = 0.04});
        forged(p,
               closedSpline(lie.at({{213, -15}, {233, -17}, {253, -14}, {253, 14}, {233, 17}, {213, 15}}), 6),
               {.bevel = 7});
        sawnPole(p, lie.at({{248, 0}, {264, 0}}), {7, 8});
    }};
