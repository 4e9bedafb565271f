// Goat willow, Salix caprea: bare twigs with fat silver catkins of silky down, some already yellow with
// anthers; one broad wrinkled leaf.

#include "plates/engraver/Path.h"
#include "plates/engraver/Relief.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_159_marceau", [](Plate& p) {
        const auto catkin = [&](Point at, double degrees, double size, bool open) {
            const Point ax = direction(degrees), side = rightOf(ax);
            const auto o = [&](double x, double y) { return at + ax * (x * size) + side * (y * size); };
            const Path body = closedSpline({o(0, 0), o(0.12, 0.24), o(0.45, 0.33), o(0.8, 0.24), o(1, 0),
                                            o(0.8, -0.24), o(0.45, -0.33), o(0.12, -0.24)});
            const Palette down = open ? palettes::yellow : mix(palettes::silver, palettes::whiteflower, 0.3);
            relief(
                p, body,
                {.palette = down, .bevel = size * 0.34, .hatched = false, .contour = 0.3, .highlight = 0.3});
            // Down lies forward along the catkin and stands out at its rim.
            for (int k = 0; k < 150; ++k) {
                const double u = p.random.uniform(0.02, 0.98), v = p.random.around(1.0);
                const double half = 0.33 * std::sqrt(std::max(0.02, 1 - (u - 0.46) * (u - 0.46) / 0.29));
                const Point from = o(u, v * half);
                const double way = degrees + v * (open ? 70 : 44);
                const double reach = size * (open ? 0.2 : 0.13);
                const double dark = 0.3 + 0.5 * maths::clamp01(dot(side * v, Point{0.5, 0.62}));
                p.stroke(spline({from, polar(from, way, reach * 0.6), polar(from, way - v * 10, reach)}),
                         {.width = 0.45 + 0.3 * dark,
                          .swell = 0,
                          .fade = 0.6,
                          .colour = open ? Colour(0x80601E) : Colour(0x5E5F66)});
                if (open)
                    p.dot(polar(from, way, reach), 1.7, Colour(0xE9B92E));
            }
            for (const double turn : {-34.0, 34.0})
                leaflet(p, o(-0.06, 0), polar(o(-0.06, 0), degrees + turn, size * 0.26),
                        {.width = size * 0.08,
                         .palette = palettes::chestnut,
                         .shape = shapes::ovate,
                         .tone = 0.2});
        };
        const auto shoot = [&](const Path& spine, int count, double size, int opened) {
            const Path curve = twig(p, spine, {5, 2.6}, mix(palettes::bark, palettes::redstem, 0.35));
            for (int k = 0; k < count; ++k) {
                const double q = 0.28 + 0.7 * k / (count - 1.0), s = k % 2 == 0 ? -1 : 1;
                const bool last = k + 1 == count;
                catkin(along(curve, last ? 1 : q), angleAlong(curve, q) + (last ? 0 : s * 46), size,
                       k < opened);
            }
        };
        const LeafKind blade{.shape = shapes::elliptic,
                             .margin = crenate(8, 0.06),
                             .veins = 8,
                             .pucker = 0.26,
                             .petiole = 0.12,
                             .palette = palettes::leaf};
        growLeaf(p, {214, 300}, -4, 136, 36, blade, -10);
        shoot({{190, 352}, {150, 262}, {108, 180}, {96, 122}}, 5, 66, 2);
        shoot({{206, 352}, {222, 246}, {230, 160}, {254, 92}}, 6, 70, 0);
    }};
