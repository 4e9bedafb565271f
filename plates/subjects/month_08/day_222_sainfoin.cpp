// Sainfoin, Onobrychis viciifolia: pinnate leaves of many small leaflets, dense spikes of pink pea flowers
// striped with red.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_222_sainfoin", [](Plate& p) {
        herb(p, {.height = 216,
                 .stems = {-66, 66, 0},
                 .stemRadius = 2.4,
                 .leaf = {.build = LeafKind::Build::pinnate,
                          .shape = shapes::elliptic,
                          .petiole = 0.14,
                          .leaflets = 7,
                          .leafletWidth = 0.17},
                 .leaves = 4,
                 .leavesFrom = 0.12,
                 .leavesTo = 0.54,
                 .leafLength = 100,
                 .topLeafLength = 72,
                 .leafWidth = 13,
                 .topLeafWidth = 10,
                 .leafAngle = 54,
                 .root = RootKind::taproot,
                 .inflorescence = raceme({.flower = peas(25, palettes::rose, palettes::magenta),
                                          .nodes = 7,
                                          .from = 0.58,
                                          .perNode = 2,
                                          .angle = 76,
                                          .pedicel = 5,
                                          .smallest = 0.42})});
    }};
