// Garden balsam, Impatiens balsamina: a juicy stem, lance serrate leaves, pink spurred flowers hanging on
// short stalks in their axils.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_006_balsamine", [](Plate& p) {
        herb(p, {.height = 206,
                 .stems = {0},
                 .stemRadius = 5.2,
                 .tipRadius = 2.4,
                 .stemPalette = mix(palettes::stem, palettes::redstem, 0.4),
                 .leaf = {.shape = shapes::lance, .margin = serrate(12), .veins = 8, .petiole = 0.1},
                 .leaves = 10,
                 .leavesFrom = 0.1,
                 .leavesTo = 0.97,
                 .leafLength = 112,
                 .topLeafLength = 60,
                 .leafWidth = 15,
                 .topLeafWidth = 9,
                 .leafAngle = 58,
                 .root = RootKind::fibrous,
                 .inflorescence = raceme(
                     {.flower = flowers(
                          {.length = 22,
                           .width = 13,
                           .baseAngle = 66,
                           .tipAngle = 94,
                           .palette = palettes::rose,
                           .tips = palettes::pink,
                           .notch = 0.16,
                           .ruffle = 1.2,
                           .tilt = 58,
                           .roll = 0,
                           .lengthOf = [](int k) { return k == 0             ? 0.72
                                                          : k == 1 || k == 4 ? 0.9
                                                                             : 1.25; },
                           .spur = 15}),
                      .nodes = 4,
                      .from = 0.3,
                      .to = 0.92,
                      .perNode = 2,
                      .angle = 66,
                      .pedicel = 20,
                      .smallest = 0.62,
                      .nod = 7})});
    }};
