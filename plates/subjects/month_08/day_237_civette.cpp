// Chives, Allium schoenoprasum: a tuft of round hollow leaves, violet globes, a clump of narrow white bulbs.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Herb.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_237_civette", [](Plate& p) {
        for (int k = 0; k < 7; ++k) {
            const double x = 170 + k * 10.0;
            bulb(p, {x, 296 + (k % 2) * 4.0}, 7.6, 28, mix(palettes::whiteflower, palettes::root, 0.4));
        }
        for (int k = 0; k < 22; ++k) {
            const double f = (k % 11 - 5) / 5.0 + p.random.around(0.06);
            const double tall = k < 11 ? 150 : 104;
            const Point foot{200 + f * 30, 300};
            tube(p,
                 {foot, foot + Point{f * 22, -tall * 0.55},
                  foot + Point{f * 74 + p.random.around(6), -tall + 34 * f * f}},
                 {2.3, 2.2, 1.6, 0.4},
                 {.palette = k % 3 == 0 ? palettes::leafy : palettes::bluegreen,
                  .lines = Lines::along,
                  .contour = 0.6});
        }
        for (const double f : {-1.0, 1.0, -0.5, 0.52, 0.0}) {
            const Path scape{{200 + f * 20, 300}, {200 + f * 40, 200}, {200 + f * 92, 112 + 36 * f * f}};
            tube(p, scape, {2.2, 1.8}, {.palette = palettes::stem});
            globeHead(p, scape.back() + Point{0, 2}, -90 + f * 14,
                      {.radius = 24,
                       .petal = 11,
                       .petalWidth = 3,
                       .count = 90,
                       .squash = 0.9,
                       .palette = mix(palettes::violet, palettes::magenta, 0.25)});
        }
    }};
