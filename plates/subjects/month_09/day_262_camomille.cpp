// Chamomile, Matricaria chamomilla: thread-cut leaves, white drooping rays about a high yellow cone.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_262_camomille", [](Plate& p) {
        herb(p,
             {.height = 214,
              .stems = {-88, 88, -40, 44, 0},
              .stemRadius = 2.2,
              .leaf = {.build = LeafKind::Build::frond, .leaflets = 4, .leafletWidth = 0.11, .subdivided = 2},
              .leaves = 4,
              .leavesFrom = 0.12,
              .leavesTo = 0.7,
              .leafLength = 84,
              .topLeafLength = 56,
              .leafWidth = 12,
              .topLeafWidth = 9,
              .leafAngle = 54,
              .root = RootKind::taproot,
              .inflorescence = solitary(composites({.rays = 15,
                                                    .length = 27,
                                                    .width = 4.6,
                                                    .palette = palettes::whiteflower,
                                                    .disc = 13,
                                                    .dome = 0.9,
                                                    .discPalette = palettes::yellow,
                                                    .baseAngle = 82,
                                                    .tipAngle = 122,
                                                    .tilt = 32,
                                                    .involucre = 8,
                                                    .washLift = 0}))});
    }};
