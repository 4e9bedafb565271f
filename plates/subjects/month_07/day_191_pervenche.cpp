// Periwinkle, Vinca minor: trailing stems with opposite glossy leaves, violet-blue pinwheels of five
// slanted petals.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Flower.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_191_pervenche", [](Plate& p) {
        const LeafKind glossy{
            .shape = shapes::elliptic, .veins = 6, .petiole = 0.08, .palette = palettes::darkleaf};
        const auto trail = [&](const Path& spine, int pairs, double size) {
            const Path curve = stem(p, spine, {2.6, 1.8});
            for (int k = 0; k < pairs; ++k) {
                const double q = 0.1 + 0.9 * k / (pairs - 1.0), way = angleAlong(curve, q);
                for (const int side : {-1, 1})
                    growLeaf(p, along(curve, q), way + side * (k + 1 == pairs ? 34 : 62),
                             size * (1 - 0.3 * q), size * 0.23 * (1 - 0.3 * q), glossy, side * 10.0);
            }
        };
        trail({{62, 290}, {130, 280}, {200, 300}, {270, 292}, {336, 306}}, 6, 62);
        trail({{70, 276}, {104, 200}, {116, 130}}, 4, 60);
        trail({{150, 288}, {230, 220}, {304, 176}}, 4, 64);
        struct Bloom {
            Point from, tip;
            double degrees;
        };
        for (const Bloom& b : {Bloom{{170, 292}, {190, 130}, -96}, Bloom{{100, 220}, {92, 84}, -104},
                               Bloom{{268, 200}, {288, 96}, -70}}) {
            stem(p, {b.from, lerp(b.from, b.tip, 0.5) + Point{8, 0}, b.tip}, {1.8, 1.5});
            flower(p, b.tip, b.degrees,
                   {.length = 42,
                    .width = 22,
                    .baseAngle = 76,
                    .tipAngle = 92,
                    .shape = {0.28, 0.5, 0.76, 0.95, 1, 0.8},
                    .palette = mix(palettes::violet, palettes::blue, 0.6),
                    .cup = 3,
                    .tilt = 74,
                    .roll = 10,
                    .marking =
                        [](double u, double v) {
                            return 0.3 * (1 - maths::smooth(0.1, 0.4, u)) + 0.22 * maths::smooth(-0.2, 1, v) -
                                   0.06;
                        },
                    .tube = 16,
                    .tubeRadius = 3,
                    .eye = 5,
                    .eyePalette = palettes::whiteflower,
                    .sepals = 5,
                    .washLift = 0.14});
        }
    }};
