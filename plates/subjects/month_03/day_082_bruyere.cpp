// Heather, Erica cinerea: wiry stems crowded with needle leaves in threes, one-sided spires of small rosy
// urns with pinched mouths.

#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_082_bruyere", [](Plate& p) {
        const auto spire = [&](const Path& spine, double size) {
            const Path curve = spline(spine);
            for (int k = 0; k < 30; ++k) {
                const double q = 0.04 + 0.6 * k / 29.0;
                const Point at = along(curve, q);
                const double way = angleAlong(curve, q);
                for (const double f : {-62.0, 60.0, k % 2 == 0 ? 24.0 : -24.0})
                    leaflet(p, at, polar(at, way + f + p.random.around(8), 17 * size),
                            {.width = 1.5,
                             .palette = k % 3 == 0 ? palettes::leaf : palettes::darkleaf,
                             .shape = {0.7, 1, 0.9, 0.6, 0},
                             .hatched = false,
                             .midrib = false});
            }
            tube(p, spine, {2.6, 2, 1.2}, {.palette = palettes::bark});
            const Palette rosy = mix(palettes::rose, palettes::magenta, 0.55);
            // Bells hang on short stalks all round; those in front cover the stem.
            constexpr int nodes = 7;
            for (int k = nodes - 1; k >= 0; --k) {
                const double q = 0.5 + 0.5 * k / (nodes - 1), scale = size * (1.42 - 0.09 * k);
                if (k + 1 == nodes) {
                    bell(p, curve.back(), -90,
                         {.length = 13, .radius = 5, .lobes = 4, .palette = rosy, .sepals = 4}, scale);
                    continue;
                }
                for (const double way : {k % 2 == 0 ? 168.0 : 150.0, k % 2 == 0 ? 30.0 : 12.0, 88.0}) {
                    const Point at = along(curve, q);
                    const double lean = way + p.random.around(8);
                    const Point end = polar(at,
                                            lean - (way > 100  ? -24
                                                    : way < 60 ? 24
                                                               : 0),
                                            way == 88 ? 2 : 11 * scale);
                    if (way != 88)
                        stem(p, {at, end}, {1.1, 1}, palettes::redstem);
                    bell(p, end,
                         lean + (way > 100  ? -30
                                 : way < 60 ? 30
                                            : 0),
                         {.length = 18,
                          .radius = 7.4,
                          .shape = {0.35, 0.9, 1.08, 1, 0.72, 0.42, 0.62},
                          .lobes = 4,
                          .lobeDepth = 0.1,
                          .palette = rosy,
                          .tilt = 16,
                          .sepals = 4},
                         scale);
                }
            }
        };
        spire({{196, 344}, {164, 270}, {122, 190}, {108, 116}}, 0.92);
        spire({{206, 344}, {240, 270}, {278, 190}, {296, 122}}, 0.92);
        spire({{200, 348}, {204, 250}, {196, 160}, {204, 66}}, 1.1);
    }};
