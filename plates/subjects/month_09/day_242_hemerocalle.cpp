// Day lily, Hemerocallis fulva: orange trumpets of six recurved tepals on a tall branched scape, long
// arching strap leaves, fleshy roots.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_242_hemerocalle", [](Plate& p) {
        for (const double a : {60.0, 76.0, 92.0, 108.0, 122.0})
            tube(p, {{200, 312}, polar({200, 312}, a, 18), polar({200, 312}, a + 4, 36)}, {2.4, 4, 4.4, 1},
                 {.palette = palettes::root});
        for (const double f : {-1.0, 1.0, -0.72, 0.74, -0.42, 0.44})
            leaf(p,
                 {{200 + f * 10, 316},
                  {200 + f * 54, 240 - 22 * (1 - std::fabs(f))},
                  {200 + f * 128, 226 - 60 * (1 - std::fabs(f))},
                  {200 + f * 146, 262 - 50 * (1 - std::fabs(f))}},
                 {.width = 6.4, .shape = shapes::linear, .veins = 0, .parallel = true});
        stem(p, {{200, 316}, {204, 220}, {198, 130}}, {4, 3.2});
        const FlowerForm lily{.petals = 6,
                              .length = 74,
                              .width = 15,
                              .baseAngle = 12,
                              .tipAngle = 104,
                              .shape = {0.35, 0.6, 0.9, 1, 0.8, 0},
                              .palette = palettes::orange,
                              .tips = palettes::carrot,
                              .cup = 1.5,
                              .ruffle = 1.6,
                              .tilt = 26,
                              .marking =
                                  [](double u, double v) {
                                      return 0.26 * (1 - maths::smooth(0.2, 0.6, u)) -
                                             0.2 * maths::exp(-v * v * 70);
                                  },
                              .stamens = 6,
                              .stamenLength = 0.9};
        struct Bloom {
            Point at;
            double degrees;
        };
        tube(p, {{199, 140}, {204, 108}, {212, 70}}, {1.8, 5.6, 5.4, 1},
             {.palette = palettes::orange, .lines = Lines::along});
        tube(p, {{198, 140}, {190, 116}, {186, 92}}, {1.6, 4.4, 4.2, 1},
             {.palette = palettes::leafy, .lines = Lines::along});
        for (const Bloom& b : {Bloom{{152, 124}, -134}, Bloom{{246, 128}, -44}}) {
            stem(p, {{198, 138}, lerp({198, 138}, b.at, 0.5) + Point{0, 5}, b.at}, {2.4, 3.4});
            flower(p, b.at, b.degrees, lily);
        }
    }};
