// Bay laurel, Laurus nobilis: stiff pointed leaves with wavy rims, black oval berries, the twig bent into a
// victor's crown.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_133_laurier", [](Plate& p) {
        const auto half = [&](double side) {
            Path spine;
            for (int k = 0; k <= 12; ++k) {
                const double a = 90 - side * (4 + k * 12.6);
                spine.push_back(Point{200, 196} + Point{direction(a).x * 98, direction(a).y * 104});
            }
            const Path curve = twig(p, spine, {4.2, 3.2, 1.6});
            for (int k = 0; k < 9; ++k) {
                const double q = 0.06 + 0.92 * k / 8.0, way = angleAlong(curve, q);
                const Point at = along(curve, q);
                for (const double turn : {-44.0, 44.0}) {
                    const double w = way + turn * (k == 8 ? 0.5 : 1);
                    leaf(p, {at, polar(at, w, 27), polar(at, w - turn * 0.22, 56)},
                         {.width = 10.5,
                          .shape = shapes::lance,
                          .margin = wavy(5, 0.07),
                          .palette = (k + (turn > 0 ? 1 : 0)) % 2 == 0 ? palettes::darkleaf : palettes::leaf,
                          .veins = 6});
                }
                if (k > 0 && k < 8 && k % 2 == 1)
                    for (const double turn : {-30.0, 150.0})
                        ball(p, polar(at, way + turn, 10), 7.6,
                             {.palette = palettes::berry, .direction = way, .squash = 1.2});
            }
        };
        half(1);
        half(-1);
        tube(p, {{178, 292}, {200, 302}, {224, 296}}, {4, 4, 4}, {.palette = palettes::red});
        tube(p, {{198, 300}, {186, 322}, {166, 338}}, {4, 5, 3}, {.palette = palettes::red});
        tube(p, {{202, 300}, {216, 322}, {238, 336}}, {4, 5, 3}, {.palette = palettes::red});
    }};
