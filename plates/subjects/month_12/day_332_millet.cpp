// Millet, Panicum miliaceum: a heavy panicle that hangs to one side, thick with round golden grains.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Cereal.h"

#include <cmath>

using namespace tambrelle::engraver;

static const Subject subject{
    "day_332_millet", [](Plate& p) {
        cereal(p, {.foot = {150, 346},
                   .height = 274,
                   .headLength = 20,
                   .stems = {10},
                   .radius = 4,
                   .palette = palettes::leafy,
                   .leafPalette = palettes::leaf,
                   .leaves = 3,
                   .leafLength = 130,
                   .leafWidth = 10,
                   .head = [](Plate&, const Path&) {}});
        const Path curve =
            spline({{158, 96}, {166, 70}, {194, 60}, {230, 78}, {258, 128}, {268, 190}, {270, 250}});
        stem(p, {{156, 130}, {158, 96}, {166, 70}, {194, 60}, {230, 78}, {258, 128}, {268, 190}, {270, 250}},
             {3, 2.6, 1.4}, palettes::leafy);
        for (int k = 0; k < 44; ++k) {
            const double q = 0.16 + 0.84 * k / 43.0;
            const Point from = along(curve, q);
            const double out = ((k * 17) % 11 - 5) / 5.0;
            const double reach = 34 + 22 * (1 - std::fabs(out));
            const Point end = from + Point{out * 46 * (1 - 0.35 * q), reach};
            const Path way = spline({from, lerp(from, end, 0.5) + Point{out * 12, -8}, end});
            p.stroke(way, {.width = 0.8, .swell = 0, .fade = 0});
            for (int g = 0; g < 5; ++g) {
                const Point at = along(way, 0.4 + g * 0.15) + Point{p.random.around(3.4), p.random.around(2)};
                ball(p, at, 4.3,
                     {.palette = g % 3 == 0 ? palettes::straw : palettes::gold,
                      .direction = 90,
                      .squash = 1.15,
                      .contour = 0.6,
                      .shade = 0.22});
            }
        }
    }};
