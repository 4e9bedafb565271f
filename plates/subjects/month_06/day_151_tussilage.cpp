// Coltsfoot, Tussilago farfara, in flower: scaly stalks without leaves, yellow heads with very many thin
// rays.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_151_tussilage", [](Plate& p) {
        tube(p, {{110, 336}, {180, 328}, {240, 332}, {300, 326}}, {4, 5, 4},
             {.palette = palettes::root, .rough = 0.1});
        for (int k = 0; k < 6; ++k)
            rootlets(p, {134 + 28.0 * k, 332}, 2, 90, 50, 18);
        const auto shoot = [&](const Path& spine, double degrees, double size) {
            const Path curve = stem(p, spine, {5, 4.6}, palettes::redstem);
            for (int k = 0; k < 13; ++k) {
                const double q = 0.05 + 0.07 * k, s = k % 2 == 0 ? 1 : -1;
                const Point at = along(curve, q), side = polar(at, angleAlong(curve, q) + 90, s * 3);
                leaflet(p, side, polar(side, angleAlong(curve, q) + s * 18, 25),
                        {.width = 5, .palette = mix(palettes::redstem, palettes::leafy, 0.45)});
            }
            compositeHead(p, curve.back(), degrees,
                          {.rays = 46,
                           .length = size,
                           .width = 2.1,
                           .palette = palettes::yellow,
                           .rings = 2,
                           .disc = size * 0.34,
                           .baseAngle = 66,
                           .tipAngle = 86,
                           .tilt = 54,
                           .involucre = size * 0.4,
                           .washLift = 0.28});
        };
        shoot({{150, 330}, {136, 250}, {116, 168}}, -104, 44);
        shoot({{252, 330}, {266, 260}, {288, 190}}, -72, 42);
        shoot({{202, 330}, {204, 220}, {200, 104}}, -90, 50);
    }};
