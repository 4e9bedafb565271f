// Spindle, Euonymus europaeus: opposite lance-ovate leaves on a green four-edged twig, rosy four-lobed
// capsules that open on orange seeds.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Branch.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_236_fusain", [](Plate& p) {
        branch(p, {.spine = {{70, 92}, {150, 70}, {236, 78}, {330, 58}},
                   .radius = {4.4, 3.4, 2},
                   .bark = palettes::stem,
                   .leaf = {.shape = {0.15, 0.6, 0.95, 1, 0.7, 0.3, 0},
                            .margin = serrate(16, 0.06),
                            .veins = 7,
                            .petiole = 0.08},
                   .leaves = {{0.12, -128, 84, 18},
                              {0.12, 112, 104, 20},
                              {0.5, -60, 80, 17},
                              {0.48, 84, 76, 16},
                              {0.78, -52, 72, 16},
                              {0.8, 70, 100, 19},
                              {0.99, 24, 74, 16}}});
        const Palette coral = mix(palettes::rose, palettes::crimson, 0.45);
        const auto fruit = [&](Point from, Point at, double size, bool open) {
            stem(p, {from, lerp(from, at, 0.5) + Point{3, 0}, at + Point{0, -size * 0.5}}, {1.3, 1.1},
                 palettes::redstem);
            for (const double x : {-0.86, 0.86, -0.3, 0.32})
                ball(p, at + Point{x * size * 0.66, std::fabs(x) > 0.5 ? -2.0 : 3.0}, size * 0.56,
                     {.palette = coral, .direction = -90, .squash = 1.25, .lines = Lines::along});
            if (open)
                for (const double x : {-0.6, 0.05, 0.62}) {
                    ball(p, at + Point{x * size * 0.62, size * 0.86}, size * 0.3,
                         {.palette = palettes::orange, .squash = 1.2});
                }
        };
        const Point knot{166, 120}, knot2{250, 116};
        stem(p, {{150, 70}, {160, 92}, knot}, {1.8, 1.4});
        stem(p, {{236, 78}, {246, 96}, knot2}, {1.8, 1.4});
        fruit(knot, {124, 178}, 25, true);
        fruit(knot, {206, 168}, 25, false);
        fruit(knot2, {282, 186}, 25, true);
        fruit(knot2, {238, 226}, 27, true);
        fruit(knot, {166, 232}, 27, true);
    }};
