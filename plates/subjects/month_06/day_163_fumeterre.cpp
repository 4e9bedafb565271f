// Fumitory, Fumaria officinalis: weak branching stems, finely cut bluish leaves, loose racemes of pink
// spurred tubes with dark tips.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_163_fumeterre", [](Plate& p) {
        const Palette pink = mix(palettes::pink, palettes::rose, 0.7);
        // The stalk meets the tube behind its middle; the spur is the blunt end, the lips are dark.
        const auto blossom = [&](Point at, double degrees, double s) {
            const Point d = direction(degrees), up = direction(degrees - 90) * (d.x >= 0 ? 1 : -1);
            tube(p, {at - d * (9 * s) + up * (2 * s), at + d * (4 * s) + up * (1.4 * s), at + d * (18 * s)},
                 {5.4 * s, 5.6 * s, 4.8 * s, 3.4 * s},
                 {.palette = pink, .lines = Lines::along, .spacing = 1.8});
            ball(p, at - d * (9 * s) + up * (2 * s), 5.2 * s, {.palette = pink, .lines = Lines::none});
            for (const double turn : {-20.0, 20.0})
                leaflet(
                    p, at + d * (15 * s), polar(at + d * (15 * s), degrees + turn, 13 * s),
                    {.width = 4 * s, .palette = palettes::crimson, .shape = shapes::elliptic, .tone = 0.3});
            leaflet(p, at - up * (3 * s), at - up * (5 * s) + d * (9 * s),
                    {.width = 2.2 * s, .palette = palettes::leafy});
        };
        const LeafKind cut{.build = LeafKind::Build::frond,
                           .petiole = 0.22,
                           .palette = palettes::bluegreen,
                           .leaflets = 4,
                           .subdivided = 3};
        const auto shoot = [&](const Path& spine, double size, int flowers, double flowersFrom,
                               const std::vector<std::pair<double, double>>& leaves) {
            const Path curve = spline(spine);
            for (const auto& [q, degrees] : leaves)
                growLeaf(p, along(curve, q), degrees, 104 * size, 25 * size, cut, degrees < -90 ? -14 : 14);
            stem(p, spine, {3, 2.4, 1.4}, palettes::bluegreen);
            for (int k = flowers - 1; k >= 0; --k) {
                const double t = k / static_cast<double>(flowers - 1),
                             q = flowersFrom + (1 - flowersFrom) * t;
                const double side = k % 2 == 0 ? 1 : -1, s = size * (1.2 - 0.55 * t);
                const double out = angleAlong(curve, q) + side * (62 - 34 * t) + p.random.around(9);
                const Point at = along(curve, q), to = polar(at, out, 15 * s);
                p.stroke({at, to}, {.width = 1.3, .swell = 0, .fade = 0});
                blossom(to, (side > 0 ? -34 : -146) + side * (-30 * t + p.random.around(20)), s);
            }
        };
        rootlets(p, {200, 336}, 7, 90, 80, 26);
        shoot({{198, 340}, {160, 290}, {112, 240}, {84, 176}, {90, 108}}, 0.92, 11, 0.6,
              {{0.26, -176}, {0.5, -20}});
        shoot({{203, 340}, {246, 296}, {292, 244}, {316, 186}, {308, 120}}, 0.92, 11, 0.6,
              {{0.3, -4}, {0.52, -152}});
        shoot({{200, 344}, {206, 260}, {192, 180}, {204, 106}, {198, 46}}, 1.12, 13, 0.54,
              {{0.22, -158}, {0.26, -30}});
    }};
