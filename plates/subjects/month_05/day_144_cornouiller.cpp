// Cornelian cherry, Cornus mas, in fruit: oblong red cherries, opposite leaves whose veins arch to the tip.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Branch.h"

#include <cmath>

using namespace tambrelle::engraver;

static const Subject subject{
    "day_144_cornouiller", [](Plate& p) {
        const Palette cherry = mix(palettes::scarlet, palettes::crimson, 0.4);
        const auto fruits = [&](Point knot, std::initializer_list<double> xs) {
            for (const double x : xs) {
                const Point tip = knot + Point{x, 30 - std::fabs(x) * 0.2};
                stem(p, {knot, lerp(knot, tip, 0.6) + Point{x * 0.2, -2}, tip}, {1.6, 1.4});
                ball(p, tip + Point{x * 0.12, 25}, 17,
                     {.palette = cherry, .direction = -90 + x * 0.3, .squash = 1.5});
            }
        };
        branch(p, {.spine = {{54, 88}, {138, 68}, {228, 78}, {314, 60}},
                   .radius = {4.6, 3.6, 2.2},
                   .leaf = {.shape = shapes::ovate, .veins = 4, .slant = 0.5, .petiole = 0.1},
                   .leaves = {{0.08, -118, 74, 20},
                              {0.08, 112, 122, 30},
                              {0.38, -66, 70, 20},
                              {0.7, -56, 74, 20},
                              {0.74, 62, 110, 28},
                              {0.99, 34, 84, 24},
                              {0.99, -40, 66, 18}}});
        fruits({152, 71}, {-28, 26, 0});
        fruits({232, 79}, {-26, 26, 0});
    }};
