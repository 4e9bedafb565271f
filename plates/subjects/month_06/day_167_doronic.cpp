// Leopard's bane, Doronicum: heart-shaped basal leaves, one large yellow daisy to each long stalk.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_167_doronic", [](Plate& p) {
        herb(p, {.height = 210,
                 .stems = {-80, 78, 0},
                 .stemRadius = 2.8,
                 .tipRadius = 2.2,
                 .leaf = {.shape = shapes::cordate, .margin = dentate(5, 0.1), .veins = 4, .petiole = 0},
                 .leaves = 2,
                 .leavesFrom = 0.36,
                 .leavesTo = 0.6,
                 .leafLength = 54,
                 .topLeafLength = 36,
                 .leafWidth = 17,
                 .topLeafWidth = 10,
                 .leafAngle = 44,
                 .basal = 6,
                 .basalLength = 118,
                 .basalWidth = 32,
                 .basalLeaf = LeafKind{.shape = shapes::cordate, .margin = dentate(7, 0.1), .petiole = 0.42},
                 .root = RootKind::fibrous,
                 .inflorescence = solitary(composites({.rays = 26,
                                                       .length = 34,
                                                       .width = 3.4,
                                                       .palette = palettes::yellow,
                                                       .disc = 12,
                                                       .discPalette = palettes::orange,
                                                       .baseAngle = 72,
                                                       .tipAngle = 88,
                                                       .tilt = 62,
                                                       .involucre = 9,
                                                       .washLift = 0.26}))});
    }};
