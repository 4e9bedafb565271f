// Tinder polypore, Fomes fomentarius: a hoof-shaped grey bracket, zoned in bands, growing from a birch trunk.

#include "plates/engraver/Relief.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Habit.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_127_amadouvier", [](Plate& p) {
        trunk(p, {214, 350}, {206, 24}, 52, {.bark = TrunkForm::Bark::birch, .palette = palettes::birch});
        const auto bracket = [&](Point at, double w, double h, double side) {
            const auto o = [&](double x, double y) { return at + Point{side * x * w, y * h}; };
            const Path pores = closedSpline({o(-0.06, 0.62), o(0.4, 0.74), o(0.92, 0.6), o(1, 0.7),
                                             o(0.62, 0.96), o(0.2, 0.98), o(-0.08, 0.84)});
            relief(p, pores, {.palette = palettes::tan, .bevel = 10});
            const Path hoof =
                closedSpline({o(-0.08, 0.02), o(0.2, -0.02), o(0.52, 0.14), o(0.82, 0.4), o(1.02, 0.68),
                              o(0.9, 0.78), o(0.5, 0.84), o(0.1, 0.82), o(-0.08, 0.76)});
            const auto depth = [=](Point q) {
                const double x = side * (q.x - at.x) / w, y = (q.y - at.y) / h;
                return y - 0.28 * x * x;
            };
            relief(p, hoof,
                   {.palette = palettes::grey,
                    .bevel = 60,
                    .tint = [=](Point q, double, double tone, Colour colour) {
                        const double d = depth(q);
                        const double band = 0.5 + 0.5 * maths::cos(d * 46);
                        const Palette zone = d > 0.42 ? palettes::brown : palettes::dun;
                        return mix(colour, ramp(zone, tone * 0.8 + 0.16),
                                   d > 0.42 ? 0.75 : 0.25 + 0.6 * band);
                    }});
            const Plate::Clip inside(p, hoof);
            for (int k = 0; k < 6; ++k) {
                Path ring;
                for (int i = 0; i <= 20; ++i) {
                    const double x = -0.1 + 1.2 * i / 20;
                    ring.push_back(o(x, 0.1 + 0.115 * k + 0.28 * x * x));
                }
                p.stroke(ring, {.width = 0.9 + 0.2 * (k % 2), .wobble = 0.5});
            }
        };
        bracket({250, 62}, 84, 74, 1);
        bracket({164, 116}, 98, 92, -1);
        bracket({246, 184}, 124, 122, 1);
    }};
