// Lime, Tilia: cordate toothed leaves aslant at the base, yellowish flowers hanging from the middle of a
// pale strap-shaped bract.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Branch.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_259_tilleul", [](Plate& p) {
        const Path spine = twig(p, {{72, 70}, {150, 56}, {240, 66}, {328, 50}}, {5, 4, 2.4});
        const LeafKind heart{
            .shape = shapes::cordate, .margin = serrate(15, 0.12), .veins = 6, .petiole = 0.24};
        growLeaf(p, along(spine, 0.08), 118, 130, 40, heart, -8);
        growLeaf(p, along(spine, 0.5), 96, 112, 34, heart, 6);
        growLeaf(p, along(spine, 0.94), 66, 134, 40, heart, 8);
        const auto hanging = [&](Point at, double degrees) {
            const Point tip = polar(at, degrees, 112);
            leaf(p, {at, lerp(at, tip, 0.5) + Point{4, 0}, tip},
                 {.width = 15,
                  .shape = {0.4, 0.8, 0.95, 1, 0.95, 0.4},
                  .palette = mix(palettes::leafy, palettes::cream, 0.6),
                  .veins = 9,
                  .tone = -0.12});
            const Point mid = lerp(at, tip, 0.5);
            const Point knot = mid + Point{degrees > 90 ? -26.0 : 26.0, 56};
            const Path stalk{lerp(at, tip, 0.2), mid + Point{3, 8}, knot};
            stem(p, stalk, {1.4, 1.2});
            for (int k = 0; k < 5; ++k) {
                const double a = 90 + (k - 2) * 42.0;
                const Point end = polar(knot, a, 30 - 5 * std::fabs(k - 2.0) * 0.6);
                stem(p, {knot, lerp(knot, end, 0.5), end}, {1, 0.9});
                flower(p, end, a,
                       {.length = 18,
                        .width = 6,
                        .baseAngle = 62,
                        .tipAngle = 84,
                        .shape = shapes::elliptic,
                        .palette = mix(palettes::cream, palettes::yellow, 0.5),
                        .tilt = 52,
                        .stamens = 16,
                        .stamenLength = 1.0,
                        .washLift = 0.05});
            }
        };
        hanging(along(spine, 0.3), 104);
        hanging(along(spine, 0.72), 78);
        bud(p, along(spine, 1.0), -10, 11, palettes::redstem);
    }};
