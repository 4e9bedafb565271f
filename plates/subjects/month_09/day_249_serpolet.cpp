// Wild thyme, Thymus serpyllum: a creeping mat of tiny oval leaves, round heads of rosy lipped flowers on
// short shoots.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_249_serpolet", [](Plate& p) {
        ground(p, 76, 324, 268, 6);
        const Path runner =
            twig(p, {{70, 262}, {130, 256}, {200, 262}, {270, 256}, {332, 264}}, {2, 2.6, 1.6});
        for (int k = 0; k < 9; ++k)
            rootlets(p, along(runner, 0.06 + 0.11 * k), 2, 90, 60, 13);
        for (int k = 0; k < 15; ++k) {
            const double q = 0.05 + 0.064 * k;
            const Point foot = along(runner, q);
            const double tall = (k % 2 == 0 ? 112 : 64) + p.random.around(22),
                         lean = (k - 7) * 4.0 + p.random.around(34);
            const Path shoot{foot, foot + Point{lean * 0.1 + p.random.around(5), -tall * 0.5},
                             foot + Point{lean, -tall}};
            const Path curve = stem(p, shoot, {1.6, 1.2}, palettes::redstem);

            for (int i = 0; i < 6; ++i) {
                const Point at = along(curve, 0.1 + 0.15 * i);
                for (const double side : {-1.0, 1.0})
                    leaflet(p, at, polar(at, -90 + side * 62 + lean * 0.3, 17),
                            {.width = 4.4,
                             .palette = i % 2 == 0 ? palettes::leaf : palettes::bluegreen,
                             .shape = shapes::elliptic});
            }
            if (k % 2 == 0)
                for (const double turn : {-96.0, 96.0, -64.0, 64.0, -32.0, 32.0, 0.0})
                    lipFlower(p, polar(shoot.back() + Point{0, 3}, -90 + turn, 8), -90 + turn, 22,
                              mix(palettes::rose, palettes::magenta, 0.5), turn < 0 ? -1 : 1);
        }
    }};
