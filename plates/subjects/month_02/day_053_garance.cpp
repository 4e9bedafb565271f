// Madder, Rubia tinctorum: red jointed roots that creep, a square prickly stem, whorls of six lance leaves,
// tiny yellow stars.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Maths.h"
#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Inflorescence.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_053_garance", [](Plate& p) {
        const Palette dye = mix(palettes::red, palettes::brown, 0.3);
        for (const Path& root : {Path{{200, 236}, {150, 250}, {104, 246}, {70, 268}},
                                 Path{{200, 236}, {252, 252}, {298, 246}, {334, 272}},
                                 Path{{196, 236}, {176, 276}, {140, 292}, {118, 326}},
                                 Path{{204, 236}, {226, 278}, {262, 294}, {280, 328}},
                                 Path{{200, 236}, {204, 276}, {196, 306}, {202, 338}}}) {
            const Path curve = spline(root);
            for (const double q : {0.3, 0.55, 0.8})
                rootlets(p, along(curve, q), 3, 90, 110, 16);
            tube(p, root, {8, 7, 5.4, 1.6}, {.palette = dye, .rough = 0.1});
            for (const double q : {0.2, 0.42, 0.64, 0.84})
                ball(p, along(curve, q), 8.4 - 4 * q,
                     {.palette = dye, .lines = Lines::across, .contour = 0.5});
        }
        const auto whorled = [&](const Path& spine, int nodes, double size) {
            const Path curve = spline(spine);
            const auto ring = [&](double q, double scale, bool front) {
                const Point at = along(curve, q);
                for (int k = 0; k < 6; ++k) {
                    const double a = maths::radians(k * 60.0 + 24);
                    if ((maths::sin(a) > 0) != front)
                        continue;
                    const Point tip = at + Point{maths::cos(a) * 54, maths::sin(a) * 21 - 12} * scale;
                    leaf(p, {at, lerp(at, tip, 0.5) + Point{0, -5 * scale}, tip},
                         {.width = 9.4 * scale,
                          .shape = shapes::lance,
                          .palette = front ? palettes::leafy : palettes::leaf,
                          .veins = 4});
                }
            };
            for (int k = 0; k < nodes; ++k)
                ring(0.24 + 0.74 * k / (nodes - 1), size * (1 - 0.12 * k), false);
            tube(p, spine, {4.2, 3.4, 2.4}, {.lines = Lines::along});
            for (int k = 0; k < 26; ++k) {
                const double q = k / 26.0;
                p.stroke({along(curve, q),
                          polar(along(curve, q), angleAlong(curve, q) + (k % 2 == 0 ? 118 : -118), 6.5)},
                         {.width = 0.7});
            }
            for (int k = 0; k < nodes; ++k)
                ring(0.24 + 0.74 * k / (nodes - 1), size * (1 - 0.12 * k), true);
            corymb({.flower = florets(4.4, palettes::yellow), .count = 9, .spread = 170, .length = 24})(
                p, curve);
        };
        whorled({{194, 240}, {160, 180}, {122, 128}, {110, 84}}, 4, 0.84);
        whorled({{206, 240}, {244, 180}, {280, 130}, {292, 88}}, 4, 0.84);
        whorled({{200, 240}, {202, 170}, {198, 110}, {201, 60}}, 4, 1);
        ground(p, 70, 330, 238, 3);
    }};
