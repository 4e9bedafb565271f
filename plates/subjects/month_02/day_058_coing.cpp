// Quince, Cydonia oblonga: a big lumpy golden pear clothed in grey down, calyx leaves at its eye; broad
// entire leaves felted beneath.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Maths.h"
#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Branch.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_058_coing", [](Plate& p) {
        branch(p, {.spine = {{76, 78}, {146, 58}, {220, 66}, {324, 48}},
                   .radius = {6, 5, 3},
                   .leaf = {.shape = shapes::ovate,
                            .veins = 7,
                            .petiole = 0.12,
                            .palette = mix(palettes::leaf, palettes::greygreen, 0.3)},
                   .leaves = {{0.1, 116, 104, 29},
                              {0.3, -130, 76, 23},
                              {0.62, -58, 82, 24},
                              {0.82, 64, 108, 29},
                              {0.98, 14, 82, 23}}});
        stem(p, {{208, 64}, {206, 74}, {204, 88}}, {4, 5}, palettes::bark);
        const Point eye{200, 256};
        for (const double f : {-60.0, 60.0, -30.0, 30.0, 0.0})
            leaflet(p, eye, polar(eye + Point{0, 2}, 92 + f, 26),
                    {.width = 6, .palette = palettes::greygreen});
        const LatheSurface fruit = lathe(
            p, {205, 84}, 178,
            +[](double q) {
                return 16 * (1 - q) + 6 + 62 * maths::pow(maths::sin(maths::pi * maths::pow(q, 1.4)), 0.8);
            },
            {.direction = 92,
             .tilt = 0.06,
             .palette = mix(palettes::yellow, palettes::gold, 0.3),
             .lines = Lines::along,
             .ribs = 5,
             .ribDepth = 0.05});
        for (int k = 0; k < 260; ++k) {
            const double u = p.random.uniform(0.02, 0.4), a = p.random.uniform(10, 170);
            const Point at = fruit.at(u, a);
            p.stroke({at, at + Point{p.random.around(3), 4 + p.random.around(2)}},
                     {.width = 0.5, .colour = palettes::dun.dark, .alpha = 0.8});
        }
        for (int k = 0; k < 90; ++k) {
            const Point at = along(fruit.outline, p.random.uniform());
            p.stroke({at, at + unit(at - Point{202, 190}) * 4}, {.width = 0.45, .alpha = 0.7});
        }
    }};
