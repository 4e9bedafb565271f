// Valerian, Valeriana officinalis: opposite pinnate leaves with lance leaflets, domed clusters of tiny pale
// pink flowers.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_234_valeriane", [](Plate& p) {
        herb(p, {.height = 206,
                 .stems = {0},
                 .stemRadius = 4,
                 .tipRadius = 2.6,
                 .leaf = {.build = LeafKind::Build::pinnate,
                          .shape = shapes::lance,
                          .margin = serrate(4, 0.2),
                          .veins = 4,
                          .petiole = 0.2,
                          .leaflets = 5,
                          .leafletWidth = 0.15},
                 .arrangement = Arrangement::opposite,
                 .leaves = 3,
                 .leavesFrom = 0.2,
                 .leavesTo = 0.7,
                 .leafLength = 128,
                 .topLeafLength = 76,
                 .leafWidth = 21,
                 .topLeafWidth = 13,
                 .leafAngle = 60,
                 .root = RootKind::fibrous,
                 .inflorescence = [](Plate& plate, const Path& curve) {
                     const auto cluster = corymb(
                         {.flower = florets(5, palettes::pink), .count = 26, .spread = 190, .length = 32});
                     const auto arm = [&](double q, double degrees, double reach) {
                         const Point from = along(curve, q), tip = polar(from, degrees, reach);
                         const Path spine{from, lerp(from, tip, 0.5), tip + Point{0, -6}};
                         stem(plate, spine, {1.8, 1.4});
                         cluster(plate, spline(spine));
                     };
                     arm(0.82, -150, 58);
                     arm(0.82, -30, 58);
                     arm(0.86, -122, 50);
                     arm(0.86, -58, 50);
                     cluster(plate, curve);
                 }});
    }};
