// Winter barley, two-row, Hordeum distichon: a flat ear of two ranks of plump grains, seen on its face, each
// with a long stiff awn; two grains stand at each joint (cut across, below).

#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Cereal.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_337_sucrion", [](Plate& p) {
        const Palette ripe = mix(palettes::straw, palettes::leafy, 0.25);
        const auto grain = [&](Point at, double degrees, double size) {
            const Point tip = polar(at, degrees, size);
            leaf(p, {at, lerp(at, tip, 0.5), tip},
                 {.width = size * 0.27,
                  .shape = {0.45, 0.9, 1, 0.86, 0.5, 0.08},
                  .palette = ripe,
                  .veins = 0,
                  .parallel = true,
                  .contour = 0.8,
                  .midrib = 0.7});
        };
        const auto flatEar = [&](const Path& stalk, double size, int joints) {
            const Path curve = spline(stalk);
            const Point foot = stalk.back();
            const double way = angleAlong(curve, 1);
            const Point up = direction(way) * (11.5 * size);
            for (int k = 0; k < joints; ++k)
                for (const double side : {-1.0, 1.0}) {
                    const Point at = foot + up * (k + (side > 0 ? 0.5 : 0));
                    const double lean = side * (15 - 0.6 * k);
                    const Point tip = polar(at, way + lean + side * 8, 30 * size);
                    p.stroke(spline({tip, polar(tip, way + lean * 0.8, 60 * size),
                                     polar(tip, way + lean * 0.7, (98 - 3 * k) * size)}),
                             {.width = 1.1, .swell = 0, .fade = 0.6, .wobble = 0.05});
                }
            stem(p, stalk, {2.6, 2.2}, palettes::straw);
            for (int k = joints - 1; k >= 0; --k)
                for (const double side : {-1.0, 1.0}) {
                    const Point at = foot + up * (k + (side > 0 ? 0.5 : 0));
                    grain(at, way + side * (27 - 0.9 * k), (32 - 0.6 * k) * size);
                }
        };
        strapLeaf(p, {163, 326}, -150, 84, 7, 40, palettes::oldleaf);
        strapLeaf(p, {222, 328}, -30, 74, 7, 36, palettes::oldleaf);
        flatEar({{176, 352}, {160, 324}, {146, 298}}, 1.2, 10);
        flatEar({{212, 352}, {232, 320}, {246, 290}}, 1.34, 10);
        // Cut across: two grains, back to back.
        for (const double turn : {0.0, 180.0}) {
            const Point c{322, 318};
            const Path half = turned(ellipse(c + Point{15, 0}, 15, 10, 30), turn, c);
            p.knockOut(half);
            p.flat(half, ripe, 0.4);
            p.flat(turned(ellipse(c + Point{15, 0}, 11, 6.6, 30), turn, c), palettes::cream, 0.1);
            p.contour(half, 1);
        }
        p.dot({322, 318}, 2.4);
    }};
