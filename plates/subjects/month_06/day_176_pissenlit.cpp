// Dandelion, Taraxacum: leaves with backward teeth, a yellow head all of rays, a clock of parachutes, a
// taproot.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_176_pissenlit", [](Plate& p) {
        lathe(p, {200, 296}, 66, {10, 12, 9, 5, 1.4}, {.direction = 90, .palette = palettes::brown});
        const auto toothed = [&](double degrees, double size) {
            const Point from{200, 298};
            leaf(p,
                 {from, polar(from, degrees, size * 0.5),
                  polar(from, degrees + (degrees < -90 ? -12 : 12), size)},
                 {.width = size * 0.17,
                  .shape = {0.16, 0.4, 0.65, 0.85, 1, 0.9, 0},
                  .margin = serrate(6, 0.66),
                  .veins = 6,
                  .slant = -0.1});
        };
        for (const double a : {-172.0, -8.0, -150.0, -30.0, -126.0, -54.0})
            toothed(a, 136);
        stem(p, {{198, 298}, {170, 220}, {138, 130}}, {4, 4}, palettes::redstem);
        stem(p, {{204, 298}, {230, 210}, {268, 128}}, {4, 4}, palettes::redstem);
        compositeHead(p, {138, 132}, -104,
                      {.rays = 44,
                       .length = 44,
                       .width = 3,
                       .palette = palettes::yellow,
                       .rings = 3,
                       .disc = 9,
                       .baseAngle = 60,
                       .tipAngle = 84,
                       .notch = 0.1,
                       .tilt = 50,
                       .involucre = 14,
                       .washLift = 0.3});
        const Point clock{270, 112};
        for (int k = 0; k < 90; ++k) {
            const double a = 137.5 * k, r = 46 * maths::pow((k + 0.5) / 90.0, 0.5);
            const Point tip = polar(clock, a, r);
            p.stroke({polar(clock, a, 7), tip}, {.width = 0.4});
            for (int i = 0; i < 7; ++i)
                p.stroke({tip, polar(tip, a - 78 + 26.0 * i, 9)}, {.width = 0.4, .swell = 0});
        }
        ball(p, clock, 8, {.palette = palettes::brown, .direction = -90});
        toothed(-90, 92);
    }};
