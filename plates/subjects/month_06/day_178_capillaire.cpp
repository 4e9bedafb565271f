// Maidenhair, Adiantum capillus-veneris: black wiry stalks, fan-shaped leaflets with notched rims.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_178_capillaire", [](Plate& p) {
        const auto fan = [&](Point at, double degrees, double size) {
            palmateLeaf(p, at, degrees, size,
                        {.lobes = {{-46, 0.92}, {-16, 1}, {16, 1}, {46, 0.92}},
                         .sinus = 0.84,
                         .teeth = 0,
                         .toothHeight = 0,
                         .palette = palettes::leafy,
                         .bulge = 1.5});
        };
        rootlets(p, {200, 344}, 12, 90, 130, 16);
        const auto spray = [&](const Path& spine, double size) {
            const Path curve = tube(p, spine, {2, 1}, {.palette = palettes::black, .tone = 0.3});
            for (int k = 0; k < 7; ++k) {
                const double q = 0.34 + 0.1 * k, s = k % 2 == 0 ? -1 : 1, way = angleAlong(curve, q) + s * 54;
                const Point tip = polar(along(curve, q), way, 34 - 2.6 * k),
                            middle = polar(along(curve, q), way, 18 - 1.4 * k);
                tube(p, {along(curve, q), tip}, {0.9, 0.7}, {.palette = palettes::black, .tone = 0.3});
                fan(middle, way - s * 50, size * 0.8);
                fan(tip, way + s * 14, size);
            }
            fan(curve.back(), angleAlong(curve, 0.99), size);
        };
        spray({{196, 344}, {170, 250}, {110, 190}, {72, 190}}, 27);
        spray({{204, 344}, {234, 250}, {290, 194}, {330, 198}}, 27);
        spray({{198, 344}, {184, 230}, {148, 140}, {120, 98}}, 28);
        spray({{203, 344}, {220, 230}, {262, 140}, {284, 96}}, 28);
        spray({{200, 344}, {204, 220}, {198, 130}, {204, 66}}, 30);
    }};
