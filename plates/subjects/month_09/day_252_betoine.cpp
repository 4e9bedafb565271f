// Betony, Betonica officinalis: oblong crenate leaves mostly at the foot, a bare stem with one far pair, a
// dense magenta spike with a gap below.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_252_betoine", [](Plate& p) {
        herb(p, {.height = 240,
                 .stems = {-62, 62, 0},
                 .stemRadius = 2.4,
                 .leaf = {.shape = shapes::elliptic,
                          .margin = crenate(10, 0.16),
                          .veins = 9,
                          .pucker = 0.24,
                          .petiole = 0.16},
                 .arrangement = Arrangement::opposite,
                 .leaves = 2,
                 .leavesFrom = 0.34,
                 .leavesTo = 0.58,
                 .leafLength = 66,
                 .topLeafLength = 44,
                 .leafWidth = 10,
                 .topLeafWidth = 7,
                 .leafAngle = 58,
                 .basal = 6,
                 .basalLength = 122,
                 .basalWidth = 18,
                 .basalLeaf = LeafKind{.shape = shapes::elliptic,
                                       .margin = crenate(10, 0.16),
                                       .veins = 9,
                                       .pucker = 0.24,
                                       .petiole = 0.36},
                 .root = RootKind::fibrous,
                 .inflorescence = together({raceme({.flower = lips(21, palettes::magenta),
                                                    .nodes = 1,
                                                    .from = 0.68,
                                                    .to = 0.69,
                                                    .perNode = 4,
                                                    .angle = 74,
                                                    .pedicel = 2}),
                                            raceme({.flower = lips(21, palettes::magenta),
                                                    .nodes = 5,
                                                    .from = 0.79,
                                                    .to = 1,
                                                    .perNode = 4,
                                                    .angle = 74,
                                                    .pedicel = 3,
                                                    .smallest = 0.7})})});
    }};
