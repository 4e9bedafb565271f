// Filbert, Corylus maxima: nuts wrapped in a husk that runs on into a long fringed tube; round doubly toothed
// leaves.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Branch.h"
#include "plates/engraver/botany/Leaf.h"

#include <cmath>

using namespace tambrelle::engraver;

static const Subject subject{
    "day_134_avelinier", [](Plate& p) {
        branch(
            p,
            {.spine = {{66, 84}, {150, 64}, {240, 72}, {332, 54}},
             .radius = {5, 4, 2.4},
             .leaf = {.shape = shapes::orbicular, .margin = serrate(13, 0.12), .veins = 7, .petiole = 0.14},
             .leaves = {{0.1, 116, 112, 38},
                        {0.3, -126, 76, 26},
                        {0.68, -52, 72, 25},
                        {0.86, 66, 116, 38},
                        {0.99, 0, 70, 24}}});
        stem(p, {{206, 68}, {204, 92}, {202, 116}}, {2.6, 3});
        const auto filbert = [&](double degrees, double length) {
            const Point at{202, 112};
            lathe(p, polar(at, degrees, 6), length, {8, 19, 23, 22, 17, 13.5, 13, 14, 16},
                  {.direction = degrees,
                   .tilt = 0.3,
                   .palette = mix(palettes::leafy, palettes::leaf, 0.35),
                   .lines = Lines::along,
                   .ribs = 7,
                   .ribDepth = 0.05});
            const Point mouth = polar(at, degrees, length + 2);
            for (int k = 0; k < 9; ++k) {
                const double f = (k - 4) / 4.0;
                const Point from = mouth + direction(degrees - 90) * (f * 14);
                leaflet(p, from - direction(degrees) * 6.0,
                        polar(from, degrees - f * 24, 22 - 5 * std::fabs(f)),
                        {.width = 3.6, .palette = palettes::leafy});
            }
        };
        filbert(128, 142);
        filbert(52, 142);
        filbert(91, 164);
        ground(p, 290, 352, 330, 3);
        nut(p, {320, 326}, -92, 20, 46);
    }};
