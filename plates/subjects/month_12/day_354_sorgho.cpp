// Sorghum, Sorghum bicolor: a dense brown club of grains on a stout stalk with maize-like leaves.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Cereal.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_354_sorgho", [](Plate& p) {
        cereal(p, {.foot = {200, 348},
                   .height = 262,
                   .headLength = 112,
                   .stems = {0},
                   .radius = 6,
                   .palette = palettes::leafy,
                   .leafPalette = palettes::leaf,
                   .leaves = 0,
                   .head = [](Plate& plate, const Path& spine) {
                       const Path curve = spline(spine);
                       for (int k = 0; k < 250; ++k) {
                           const double q = 1 - k / 249.0;
                           const double half = 44 * maths::sin(3.14159 * (0.1 + 0.82 * (1 - q) * 0.9 + 0.06));
                           const Point c = along(curve, q) +
                                           Point{plate.random.around(half), -6 + plate.random.around(4)};
                           ball(plate, c, 5.6,
                                {.palette = k % 4 == 0 ? palettes::ginger : palettes::brown,
                                 .direction = -90 + (c.x - 200),
                                 .squash = 1.15,
                                 .contour = 0.6,
                                 .shade = 0.25});
                       }
                   }});
        const auto broad = [&](Point from, double side, double reach, double rise) {
            leaf(p,
                 {from, from + Point{side * reach * 0.42, -rise},
                  from + Point{side * reach * 0.8, -rise * 0.7}, from + Point{side * reach, rise * 0.3}},
                 {.width = 12, .shape = {0.7, 1, 0.95, 0.7, 0.4, 0}, .veins = 0, .parallel = true});
        };
        broad({203, 320}, 1, 128, 60);
        broad({197, 296}, -1, 132, 64);
        broad({203, 256}, 1, 124, 66);
        broad({198, 226}, -1, 112, 54);
    }};
