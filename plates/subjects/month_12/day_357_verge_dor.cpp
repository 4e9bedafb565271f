// Goldenrod, Solidago: lance leaves up a straight stem, an arching one-sided plume of tiny golden heads.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_357_verge_dor", [](Plate& p) {
        herb(p, {.foot = {190, 348},
                 .height = 268,
                 .stems = {-52, 60},
                 .stemRadius = 3,
                 .leaf = {.shape = shapes::lance, .margin = serrate(8, 0.12), .veins = 4, .petiole = 0.02},
                 .leaves = 9,
                 .leavesFrom = 0.08,
                 .leavesTo = 0.6,
                 .leafLength = 78,
                 .topLeafLength = 42,
                 .leafWidth = 9,
                 .topLeafWidth = 6,
                 .leafAngle = 48,
                 .root = RootKind::rhizome,
                 .inflorescence = [](Plate& plate, const Path& curve) {
                     for (int k = 0; k < 17; ++k) {
                         const double q = 1 - k * 0.03;
                         const double side = k % 2 == 0 ? 1 : -1;
                         const Point from = along(curve, q);
                         const double reach = 18 + k * 2.6;
                         const double lift = k == 0 ? -28 : -14;
                         const Path spray = spline({from, from + Point{side * reach * 0.5, lift},
                                                    from + Point{side * reach, lift * 0.4 + 4}});
                         plate.stroke(spray,
                                      {.width = 1.2, .swell = 0, .fade = 0.3, .colour = Colour(0x66743A)});
                         const int heads = 4 + k / 3;
                         for (int h = 0; h < heads; ++h) {
                             const Point c = along(spray, 0.25 + 0.75 * h / (heads - 1.0)) + Point{0, -3.5};
                             leaflet(plate, c + Point{0, 5}, c + Point{0, -1},
                                     {.width = 2.4, .palette = palettes::leafy, .midrib = false});
                             floret(plate, c, 5.6, palettes::yellow, 7, 0xD89A2A);
                         }
                     }
                 }});
    }};
