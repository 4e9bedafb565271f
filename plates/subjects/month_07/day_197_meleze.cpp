// Larch, Larix decidua: soft bright needles in rosettes on short knobs, small round-scaled cones that stand
// on the twig.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Conifer.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_197_meleze", [](Plate& p) {
        const auto rosette = [&](Point at, double degrees, double size) {
            for (int k = 0; k < 34; ++k) {
                const double a = degrees + (k * 137.5 - 360 * std::floor(k * 137.5 / 360) - 180) * 0.62;
                const double reach = size * p.random.uniform(0.8, 1.08);
                leaflet(p, at, polar(at, a, reach),
                        {.width = 1.25,
                         .palette = k % 3 == 0 ? palettes::leaf : palettes::leafy,
                         .shape = {0.8, 1, 1, 0.9, 0.3},
                         .tone = 0.12,
                         .contour = 0.5,
                         .hatched = false,
                         .midrib = false,
                         .shade = 0.06});
            }
            ball(p, at, 5.4, {.palette = palettes::bark});
        };
        const Path main{{50, 276}, {136, 238}, {232, 214}, {350, 140}};
        const Path side{{158, 232}, {196, 170}, {250, 118}, {290, 62}};
        const Path bough = spline(main), shoot = spline(side);
        for (const auto& [q, up] :
             {std::pair{0.12, 1}, {0.26, -1}, {0.52, -1}, {0.66, -1}, {0.82, 1}, {0.9, -1}})
            rosette(polar(along(bough, q), angleAlong(bough, q) - 90 * up, 8), angleAlong(bough, q) - 90 * up,
                    40);
        for (const auto& [q, up] : {std::pair{0.34, 1}, {0.62, -1}, {0.86, 1}})
            rosette(polar(along(shoot, q), angleAlong(shoot, q) - 90 * up, 7), angleAlong(shoot, q) - 90 * up,
                    36);
        rosette(bough.back(), -30, 40);
        rosette(shoot.back(), -56, 36);
        tube(p, side, {4.4, 3.4, 2.2}, {.palette = palettes::bark, .rough = 0.2});
        tube(p, main, {6, 5, 4, 2.4}, {.palette = palettes::bark, .rough = 0.2});
        const auto larchCone = [&](Point at, double degrees, double size) {
            cone(p, at, degrees,
                 {.length = 62 * size,
                  .radius = 25 * size,
                  .shape = {0.66, 1, 1.02, 0.92, 0.72, 0.4},
                  .rows = 6,
                  .perRow = 5,
                  .palette = mix(palettes::brown, palettes::tan, 0.25),
                  .spread = 30,
                  .scaleShape = {0.7, 0.95, 1, 0.9, 0}});
        };
        larchCone(along(bough, 0.2) + Point{0, -5}, -98, 1.1);
        larchCone(along(bough, 0.74) + Point{0, -5}, -82, 1.2);
        larchCone(along(shoot, 0.46) + Point{-3, -3}, -118, 1);
    }};
