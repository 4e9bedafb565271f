// True service, Sorbus domestica: pinnate leaves of many toothed leaflets; small pear-shaped fruits, yellow
// with a red cheek.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Branch.h"
#include "plates/engraver/botany/CompoundLeaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_059_cormier", [](Plate& p) {
        branch(p,
               {.spine = {{70, 134}, {150, 112}, {232, 120}, {330, 104}},
                .radius = {5.6, 4.4, 2.6},
                .leaf = {.build = LeafKind::Build::pinnate,
                         .shape = shapes::elliptic,
                         .margin = serrate(8, 0.16),
                         .veins = 4,
                         .petiole = 0.1,
                         .leaflets = 6,
                         .leafletWidth = 0.19},
                .leaves = {
                    {0.08, 112, 168, 34}, {0.4, -150, 116, 26}, {0.66, -34, 120, 26}, {0.86, 68, 172, 34}}});
        const Point knot{202, 172};
        stem(p, {{196, 115}, {204, 142}, knot}, {2.6, 2.2});
        const auto fruit = [&](Point at, double size, double degrees) {
            stem(p, {knot, lerp(knot, at, 0.6), at}, {1.6, 1.4});
            pome(p, at,
                 {.length = 58 * size,
                  .shape = {4 * size, 10 * size, 17 * size, 24 * size, 27 * size, 22 * size, 8 * size},
                  .palette = palettes::yellow,
                  .blush = palettes::red,
                  .stalk = 3,
                  .direction = degrees,
                  .calyx = 5,
                  .dots = 12});
        };
        fruit({156, 206}, 1.0, 108);
        fruit({250, 204}, 1.0, 74);
        fruit({184, 248}, 1.06, 98);
        fruit({230, 252}, 1.06, 82);
    }};
