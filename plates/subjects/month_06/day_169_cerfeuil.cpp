// Chervil, Anthriscus cerefolium: soft leaves cut thrice into fine lobes, small white umbels.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{"day_169_cerfeuil", [](Plate& p) {
                                 herb(p, {.height = 232,
                                          .stems = {-84, 84, 0},
                                          .stemRadius = 3,
                                          .leaf = {.build = LeafKind::Build::frond,
                                                   .petiole = 0.24,
                                                   .palette = palettes::leafy,
                                                   .leaflets = 2,
                                                   .leafletWidth = 0.52,
                                                   .subdivided = 3},
                                          .leaves = 3,
                                          .leavesFrom = 0.06,
                                          .leavesTo = 0.7,
                                          .leafLength = 132,
                                          .topLeafLength = 70,
                                          .leafWidth = 32,
                                          .topLeafWidth = 20,
                                          .leafAngle = 60,
                                          .root = RootKind::taproot,
                                          .inflorescence = umbel({.rays = 7,
                                                                  .length = 36,
                                                                  .spread = 120,
                                                                  .raylets = 8,
                                                                  .rayletLength = 9,
                                                                  .floretRadius = 3})});
                             }};
