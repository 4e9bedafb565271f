// Golden alyssum, Aurinia saxatilis: a cushion of grey spoon leaves under masses of tiny four-petalled
// yellow flowers, on a rock.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Inflorescence.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/minerals/Stone.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_228_corbeille_dor", [](Plate& p) {
        ground(p, 90, 318, 300, 5);
        stone(p,
              {{86, 306},
               {92, 280},
               {126, 252},
               {166, 234},
               {240, 234},
               {282, 250},
               {316, 272},
               {330, 304},
               {250, 314},
               {150, 314}},
              {.seed = 4, .facets = 12, .rough = 1.6, .depth = 36, .ragged = 3});
        struct Tuft {
            Point foot, top;
        };
        std::vector<Tuft> tufts;
        for (int k = 0; k < 7; ++k) {
            const double f = (k - 3) / 3.0;
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
                                       .length = 11.6,
                                       .width = 5.2,
                                       .baseAngle = 72,
                                       .tipAngle = 88,
                                       .shape = {0.3, 0.6, 1, 0.95, 0.7, 0},
                                       .palette = palettes::yellow,
                                       .notch = 0.1,
                                       .tilt = 76,
                                       .eye = 1.6,
                                       .eyePalette = palettes::gold,
                                       .washLift = 0.2}),
                    .count = 7,
                    .spread = 190,
                    .length = 29})(p, spline(spine));
        }
    }};
