// Six-row barley, Hordeum vulgare: thick bristling ears with grains in six ranks, awns that fan out wide; six
// grains stand at each joint like a star (cut across, below).

#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Cereal.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_334_escourgeon", [](Plate& p) {
        const Palette ripe = mix(palettes::straw, palettes::ginger, 0.25);
        const auto fatEar = [&](const Path& stalk, double size, int joints) {
            const Path curve = spline(stalk);
            const Point foot = stalk.back();
            const double way = angleAlong(curve, 1);
            const Point up = direction(way) * (10.5 * size);
            for (int k = 0; k < joints; ++k)
                for (const double x : {-1.0, -0.5, 0.5, 1.0}) {
                    const Point tip = polar(foot + up * k, way + x * 52, 30 * size);
                    const double out = way + x * (40 - 1.4 * k) + p.random.around(3);
                    p.stroke(spline({tip, polar(tip, out, 46 * size), polar(tip, out - x * 5, 92 * size)}),
                             {.width = 1, .swell = 0, .fade = 0.6, .wobble = 0.05});
                }
            stem(p, stalk, {3.2, 2.8}, palettes::straw);
            for (int k = joints - 1; k >= 0; --k)
                for (const double x : {-1.0, 1.0, -0.5, 0.5, 0.0}) {
                    const Point at = foot + up * (k + (std::fabs(x) == 0.5 ? 0.3 : 0)) +
                                     rightOf(direction(way)) * (x * 9 * size);
                    const double a = way + x * 46, reach = 27 * size * (1 - 0.02 * k);
                    leaf(p, {at, polar(at, a - x * 8, reach * 0.5), polar(at, a - x * 12, reach)},
                         {.width = reach * (x == 0 ? 0.3 : 0.26),
                          .shape = {0.5, 0.92, 1, 0.86, 0.45, 0},
                          .palette = ripe,
                          .veins = 0,
                          .parallel = true,
                          .tone = 0.08 * x,
                          .contour = 0.75,
                          .midrib = 0.6});
                }
        };
        strapLeaf(p, {182, 328}, -160, 100, 7, 44, palettes::oldleaf);
        strapLeaf(p, {211, 312}, -20, 74, 7, 36, palettes::oldleaf);
        fatEar({{198, 352}, {172, 312}, {150, 272}}, 1.0, 9);
        fatEar({{204, 352}, {214, 290}, {236, 250}}, 1.16, 10);
        // Cut across: six grains in a star.
        const Point c{330, 312};
        for (int k = 0; k < 6; ++k) {
            const double a = k * 60.0 - 90;
            const Path part = turned(ellipse(polar(c, a, 19), 17, 9, 30), a, polar(c, a, 19));
            p.knockOut(part);
            p.flat(part, ripe, 0.4);
            p.flat(turned(ellipse(polar(c, a, 19), 12.5, 5.6, 30), a, polar(c, a, 19)), palettes::cream, 0.1);
            p.contour(part, 1);
        }
        p.dot(c, 3);
    }};
