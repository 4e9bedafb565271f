// Larch, Larix decidua: tufts of soft needles on short spurs, small upright cones.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Conifer.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_197_meleze", [](Plate& p) {
        const Path bough{{58, 250}, {140, 210}, {230, 176}, {344, 92}};
        needleTufts(p, bough, 8, 24, 44, palettes::leafy, 170);
        needleTufts(p, {{150, 206}, {200, 130}, {262, 84}}, 4, 22, 38, palettes::leafy, 170);
        const Path curve = spline(bough);
        for (const double q : {0.22, 0.5, 0.74})
            cone(p, along(curve, q) + Point{0, -3}, -94,
                 {.length = 58,
                  .radius = 22,
                  .rows = 8,
                  .perRow = 6,
                  .palette = palettes::brown,
                  .spread = 18});
    }};
