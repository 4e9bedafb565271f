// Almond, Prunus dulcis: lance leaves, green velvet husks splitting along a seam to show the pitted stone.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Branch.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_318_amande", [](Plate& p) {
        const auto husked = [&](Point at, double degrees, double size, bool open) {
            tube(p, {at, polar(at, degrees, 12)}, {2.4, 2.6}, {.palette = palettes::bark});
            const Point base = polar(at, degrees, 9);
            lathe(p, base, size,
                  {size * 0.12, size * 0.3, size * 0.36, size * 0.35, size * 0.27, size * 0.16, size * 0.03},
                  {.direction = degrees, .tilt = 0.1, .palette = palettes::leafy, .lines = Lines::along});
            if (open) {
                const Point from = polar(base, degrees, size * 0.16), tip = polar(base, degrees, size * 0.96);
                leaflet(p, from, tip,
                        {.width = size * 0.19,
                         .palette = palettes::cream,
                         .shape = shapes::elliptic,
                         .tone = 0.35,
                         .midrib = false});
                leaflet(p, polar(base, degrees, size * 0.24), polar(base, degrees, size * 0.9),
                        {.width = size * 0.145,
                         .palette = palettes::wood,
                         .shape = shapes::elliptic,
                         .tone = 0.35,
                         .contour = 0.7,
                         .midrib = false});
                for (int k = 0; k < 16; ++k)
                    p.dot(polar(polar(base, degrees, size * (0.36 + 0.028 * k)), degrees + 90,
                                p.random.around(size * 0.07)),
                          0.9);
            } else {
                const Point tip = polar(base, degrees, size);
                p.stroke(spline({base, lerp(base, tip, 0.5) + direction(degrees - 90) * (size * 0.1), tip}),
                         {.width = 0.8});
            }
        };
        branch(p, {.spine = {{72, 96}, {150, 74}, {236, 80}, {330, 58}},
                   .leaf = {.shape = shapes::lance, .margin = serrate(16, 0.06), .veins = 9, .petiole = 0.12},
                   .leaves = {{0.1, -110, 78, 12},
                              {0.04, 130, 92, 13},
                              {0.32, -70, 84, 12},
                              {0.5, 88, 112, 14},
                              {0.62, -52, 82, 12},
                              {0.84, 70, 104, 13},
                              {0.86, -60, 66, 10},
                              {0.99, 14, 78, 12}}});
        husked({150, 78}, 104, 104, false);
        husked({228, 80}, 82, 116, true);
        husked({292, 70}, 78, 88, false);
        ground(p, 110, 300, 304, 3);
        nut(p, {118, 284}, 12, 21, 62, palettes::wood, false);
        for (int k = 0; k < 26; ++k)
            p.dot({128 + p.random.uniform(0, 38), 289 + p.random.around(11)}, 1);
        leaflet(
            p, {214, 292}, {278, 284},
            {.width = 17, .palette = palettes::ginger, .shape = shapes::ovate, .tone = 0.25, .contour = 0.7});
    }};
