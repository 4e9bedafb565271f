// Gorse, Ulex europaeus: stiff green spines upon spines and no leaf; yellow pea flowers with downy calyces.

#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Branch.h"
#include "plates/engraver/botany/Flower.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_076_ajonc", [](Plate& p) {
        const Path main{{196, 348}, {208, 266}, {194, 170}, {206, 50}};
        const auto spiny = [&](const Path& spine, int count, double size) {
            const Path curve = spline(spine);
            for (int k = 0; k < count; ++k) {
                const double q = 0.08 + 0.9 * k / (count - 1), side = k % 2 == 0 ? 1 : -1;
                const Point at = along(curve, q);
                const double way = angleAlong(curve, q) + side * (56 + p.random.around(10)),
                             reach = size * (1 - 0.3 * q);
                for (const double f : {0.35, 0.6})
                    for (const double s : {-1.0, 1.0})
                        thorn(p, polar(at, way, reach * f), way + s * 44, reach * 0.42, palettes::leaf);
                thorn(p, at, way, reach, palettes::leaf);
            }
            tube(p, spine, {3.4, 2.8, 1.2}, {.lines = Lines::along});
        };
        const Path curve = spline(main);
        const Path left{along(curve, 0.24), {140, 220}, {98, 120}},
            right{along(curve, 0.34), {266, 196}, {304, 104}};
        spiny(left, 13, 56);
        spiny(right, 13, 56);
        spiny(main, 20, 60);
        const auto bloom = [&](const Path& way, double from, int count) {
            const Path c = spline(way);
            for (int k = 0; k < count; ++k) {
                const double q = from + (0.96 - from) * k / (count - 1), side = k % 2 == 0 ? 1 : -1;
                const Point at = polar(along(c, q), angleAlong(c, q) + side * 70, 5);
                peaFlower(p, at, angleAlong(c, q) + side * 52, 37 - 7 * q, palettes::yellow,
                          side > 0 ? 1 : -1, mix(palettes::yellow, palettes::orange, 0.3));
            }
        };
        bloom(left, 0.5, 4);
        bloom(right, 0.5, 4);
        bloom(main, 0.5, 5);
    }};
