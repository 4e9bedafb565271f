// Curled endive, Cichorium endivia: a flat rosette of narrow leaves cut into frizzy fringes, pale at the
// heart.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Maths.h"
#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_044_endive", [](Plate& p) {
        ground(p, 90, 310, 268, 4);
        const int count = 46;
        for (int k = 0; k < count; ++k) {
            const double q = k / (count - 1.0);
            const Point root{200, 222};
            const double a = k * 137.5;
            const double c = maths::cos(maths::radians(a)), s = maths::sin(maths::radians(a));
            const double reach = 128 - 92 * q;
            const Point tip = root + Point{c * reach, s * reach * 0.62 - 26 - 46 * q};
            const Point bend = root + Point{c * reach * 0.55, s * reach * 0.3 - 34 - 22 * q};
            const Palette tint = mix(palettes::leafy, mix(palettes::yellow, palettes::cream, 0.5), 0.85 * q);
            const Path spine = spline({root, bend, tip});
            for (int j = 0; j < 15; ++j) {
                const double t = 0.24 + 0.76 * j / 14.0;
                const Point at = along(spine, t);
                const double way = angleAlong(spine, t), side = j % 2 == 0 ? 1 : -1;
                const double long_ = (15 + p.random.around(4)) * (1 - 0.45 * q);
                const double turn = side * (52 + p.random.around(20));
                leaf(p, {at, polar(at, way + turn * 0.8, long_ * 0.6), polar(at, way + turn * 1.35, long_)},
                     {.width = 6.2 * (1 - 0.3 * q),
                      .shape = {0.35, 0.7, 1, 0.8, 0},
                      .margin = lobed(2, 0.5),
                      .palette = tint,
                      .veins = 0,
                      .tone = 0.12 * (s < 0 ? 1 : 0) - 0.05,
                      .contour = 0.5,
                      .midrib = 0.4,
                      .shade = 0.2,
                      .halo = 0.3});
            }
            tube(p, {root, bend, tip}, {4.4, 3, 1},
                 {.palette = mix(palettes::cream, palettes::leafy, 0.2),
                  .lines = Lines::along,
                  .contour = 0.5,
                  .shade = 0.15});
        }
    }};
