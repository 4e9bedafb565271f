// Golden alyssum, Aurinia saxatilis: a cushion of grey spoon leaves under masses of tiny four-petalled
// yellow flowers, on a rock.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Relief.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Inflorescence.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_228_corbeille_dor", [](Plate& p) {
        ground(p, 90, 318, 300, 5);
        relief(p,
               closedSpline({{96, 306},
                             {90, 284},
                             {108, 262},
                             {142, 252},
                             {160, 238},
                             {206, 234},
                             {240, 236},
                             {268, 250},
                             {300, 258},
                             {320, 284},
                             {312, 306},
                             {206, 310}},
                            5),
               {.palette = palettes::stone, .bevel = 40, .creases = true});
        struct Tuft {
            Point foot, top;
        };
        std::vector<Tuft> tufts;
        for (int k = 0; k < 9; ++k) {
            const double f = (k - 4) / 4.0;
            tufts.push_back({{202 + f * 46, 258}, {202 + f * 112, 132 + 74 * f * f + (k % 2 == 0 ? 0 : 22)}});
        }
        std::sort(tufts.begin(), tufts.end(), [](const Tuft& a, const Tuft& b) { return a.top.y < b.top.y; });
        for (int k = 0; k < 24; ++k) {
            const double f = (k % 12 - 5.5) / 5.5;
            const Point foot{202 + f * 52, 262};
            const double way = -90 + f * 84 + p.random.around(8);
            const double size = k < 12 ? 66 : 42;
            leaf(p, {foot, polar(foot, way - f * 6, size * 0.5), polar(foot, way + f * 14, size)},
                 {.width = size * 0.13,
                  .shape = shapes::spatulate,
                  .palette = palettes::greygreen,
                  .veins = 3});
        }
        for (const Tuft& t : tufts) {
            const Path spine{t.foot, lerp(t.foot, t.top, 0.5) + Point{0, -10}, t.top};
            stem(p, spine, {1.7, 1.3});
            corymb({.flower = flowers({.petals = 4,
                                       .length = 10.4,
                                       .width = 4.6,
                                       .baseAngle = 72,
                                       .tipAngle = 88,
                                       .shape = {0.3, 0.6, 1, 0.95, 0.7, 0},
                                       .palette = palettes::yellow,
                                       .notch = 0.1,
                                       .tilt = 76,
                                       .eye = 1.6,
                                       .eyePalette = palettes::gold,
                                       .washLift = 0.2}),
                    .count = 8,
                    .spread = 190,
                    .length = 29})(p, spline(spine));
        }
    }};
