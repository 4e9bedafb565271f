// Silver fir, Abies alba: flat sprays of blunt needles and a cone that stands upright, bracts peeping
// between its scales.

#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Conifer.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_074_sapin", [](Plate& p) {
        const NeedleForm comb{
            .length = 22, .width = 1.5, .count = 34, .angle = 62, .palette = palettes::darkleaf};
        const Path main{{62, 262}, {140, 244}, {220, 236}, {330, 200}};
        const Path curve = spline(main);
        for (const double q : {0.2, 0.42, 0.64}) {
            needleTwig(
                p, {along(curve, q), polar(along(curve, q), 48, 44), polar(along(curve, q), 38, 92)},
                {.length = 18, .width = 1.4, .count = 24, .angle = 62, .palette = palettes::bluegreen});
            needleTwig(
                p,
                {along(curve, q + 0.05), polar(along(curve, q + 0.05), -62, 40),
                 polar(along(curve, q + 0.05), -50, 84)},
                {.length = 17, .width = 1.4, .count = 22, .angle = 62, .palette = palettes::bluegreen});
        }
        needleTwig(p, main, comb);
        const auto upright = [&](Point at, double length, double radius) {
            tube(p, {at + Point{0, 5}, at + Point{0, -6}}, {5, 5}, {.palette = palettes::bark});
            cone(p, at, -90,
                 {.length = length,
                  .radius = radius,
                  .shape = {0.7, 0.95, 1, 1, 1, 0.95, 0.8, 0.4},
                  .rows = 17,
                  .perRow = 7,
                  .palette = mix(palettes::brown, palettes::leafy, 0.25),
                  .spread = 8,
                  .scaleShape = shapes::orbicular,
                  .bracts = true});
        };
        upright({224, 238}, 142, 25);
        upright({140, 246}, 118, 22);
    }};
