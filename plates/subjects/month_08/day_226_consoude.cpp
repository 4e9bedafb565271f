// Comfrey, Symphytum officinale: large rough lance leaves running down the stem, drooping coils of cream and
// violet bells.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_226_consoude", [](Plate& p) {
        int turn = 0;
        const auto pale = bells({.length = 21,
                                 .radius = 6.6,
                                 .shape = {0.45, 0.6, 0.66, 0.95, 1, 0.95},
                                 .lobes = 5,
                                 .lobeDepth = 0.12,
                                 .palette = mix(palettes::violet, palettes::magenta, 0.3),
                                 .tilt = 14});
        const auto cream = bells({.length = 21,
                                  .radius = 6.6,
                                  .shape = {0.45, 0.6, 0.66, 0.95, 1, 0.95},
                                  .lobes = 5,
                                  .lobeDepth = 0.12,
                                  .palette = palettes::cream,
                                  .tilt = 14});
        herb(p,
             {.height = 226,
              .stems = {-56, 56, 0},
              .stemRadius = 3.6,
              .hairs = 46,
              .leaf = {.shape = shapes::lance, .veins = 8, .petiole = 0, .palette = palettes::leaf},
              .leaves = 4,
              .leavesFrom = 0.24,
              .leavesTo = 0.8,
              .leafLength = 104,
              .topLeafLength = 58,
              .leafWidth = 18,
              .topLeafWidth = 11,
              .leafAngle = 54,
              .basal = 4,
              .basalLength = 136,
              .basalWidth = 22,
              .basalSpread = 82,
              .root = RootKind::taproot,
              .inflorescence = coiledCyme(
                  {.flower =
                       [pale, cream, turn](Plate& plate, Point at, double, double scale, int side) mutable {
                           (++turn % 3 == 0 ? cream : pale)(plate, at, side > 0 ? 76 : 104, scale, side);
                       },
                   .count = 6,
                   .length = 44,
                   .radius = 9,
                   .smallest = 0.4,
                   .branches = 2})});
    }};
