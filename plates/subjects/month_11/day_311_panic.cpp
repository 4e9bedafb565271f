// Panic grass, Panicum: a wide airy panicle whose hair-fine branches part and part again, with one small
// grain at each end; broad leaves that clasp the stem.

#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Cereal.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_311_panic", [](Plate& p) {
        const Path main{{196, 352}, {204, 280}, {198, 190}, {204, 60}};
        const Path axis = spline(main);
        for (const auto& [q, degrees, size] :
             {std::tuple{0.08, -146.0, 150.0}, {0.13, -30.0, 160.0}, {0.24, -140.0, 120.0}})
            strapLeaf(p, along(axis, q), degrees, size, 9, 46, palettes::leaf);
        stem(p, main, {3.4, 2.6, 1.2}, palettes::leafy);
        const auto grain = [&](Point from, double degrees, double size) {
            leaflet(p, from, polar(from, degrees, size),
                    {.width = size * 0.33,
                     .palette = p.random.chance(0.35) ? palettes::straw : palettes::fawn,
                     .shape = {0.5, 0.95, 1, 0.7, 0},
                     .tone = 0.2,
                     .contour = 0.6,
                     .hatched = false});
        };
        const auto hair = [&](Point from, double degrees, double size, double width) {
            const Point to = polar(from, degrees, size) + Point{0, size * size * 0.0011};
            const Path line = spline({from, polar(from, degrees - 3, size * 0.5), to});
            p.stroke(line, {.width = width, .swell = 0, .fade = 0.2, .wobble = 0});
            return line;
        };
        for (int node = 0; node < 10; ++node) {
            const double t = node / 9.0, q = 0.34 + 0.64 * t, way = angleAlong(axis, q);
            const double reach = (122 - 96 * t) * (node == 0 ? 0.9 : 1);
            for (const double turn : {-54.0, 50.0, -26.0, 24.0}) {
                const double a = way + turn * (1 - 0.25 * t) + p.random.around(5);
                const double size = reach * p.random.uniform(0.86, 1.08) * (std::fabs(turn) < 30 ? 0.86 : 1);
                const Path branch = hair(along(axis, q), a, size, 1.0);
                const int parts = std::max(3, static_cast<int>(size / 17));
                for (int k = 0; k < parts; ++k) {
                    const double u = 0.42 + 0.5 * k / parts, side = k % 2 == 0 ? 1 : -1;
                    const double b = angleAlong(branch, u) + side * p.random.uniform(28, 42);
                    const Path twig = hair(along(branch, u), b, size * 0.2 + 7, 0.75);
                    grain(twig.back(), angleAlong(twig, 1), 9.5);
                }
                grain(branch.back(), angleAlong(branch, 1), 10);
            }
        }
        grain(axis.back(), -90, 10);
    }};
