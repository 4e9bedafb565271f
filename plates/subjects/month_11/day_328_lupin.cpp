// Lupin, Lupinus: leaves of nine fingers, a tall spire of blue pea flowers.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_328_lupin", [](Plate& p) {
        herb(p, {.foot = {200, 346},
                 .height = 272,
                 .stems = {0},
                 .stemRadius = 4.4,
                 .tipRadius = 2,
                 .leaf = {.build = LeafKind::Build::digitate,
                          .shape = shapes::lance,
                          .veins = 0,
                          .petiole = 0.5,
                          .leaflets = 9,
                          .leafletWidth = 0.15},
                 .leaves = 6,
                 .leavesFrom = 0.1,
                 .leavesTo = 0.44,
                 .leafLength = 118,
                 .topLeafLength = 96,
                 .leafWidth = 10,
                 .topLeafWidth = 8,
                 .leafAngle = 62,
                 .root = RootKind::fibrous,
                 .inflorescence = raceme({.flower = peas(36, mix(palettes::blue, palettes::violet, 0.35)),
                                          .nodes = 10,
                                          .from = 0.44,
                                          .to = 1,
                                          .perNode = 4,
                                          .angle = 74,
                                          .pedicel = 9,
                                          .smallest = 0.36})});
    }};
