// Scurvy-grass, Cochlearia officinalis: a rosette of fleshy spoon leaves, white four-petalled flowers, round
// pods below them.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_173_cochlearia", [](Plate& p) {
        herb(p,
             {.height = 206,
              .stems = {-72, 72, 0},
              .stemRadius = 3,
              .leaf = {.shape = shapes::ovate, .veins = 3, .petiole = 0},
              .leaves = 3,
              .leavesFrom = 0.36,
              .leavesTo = 0.56,
              .leafLength = 42,
              .topLeafLength = 30,
              .leafWidth = 12,
              .topLeafWidth = 9,
              .leafAngle = 46,
              .basal = 8,
              .basalLength = 112,
              .basalWidth = 24,
              .basalSpread = 84,
              .basalLeaf =
                  LeafKind{
                      .shape = shapes::orbicular, .veins = 4, .petiole = 0.56, .palette = palettes::darkleaf},
              .root = RootKind::taproot,
              .inflorescence = together({raceme({.flower = berries(6.4, palettes::leafy),
                                                 .nodes = 4,
                                                 .from = 0.6,
                                                 .to = 0.9,
                                                 .angle = 66,
                                                 .pedicel = 13,
                                                 .smallest = 0.7}),
                                         corymb({.flower = flowers({.petals = 4,
                                                                    .length = 12,
                                                                    .width = 7,
                                                                    .baseAngle = 70,
                                                                    .tipAngle = 88,
                                                                    .palette = palettes::whiteflower,
                                                                    .tilt = 62,
                                                                    .stamens = 6,
                                                                    .stamenLength = 0.4,
                                                                    .washLift = 0}),
                                                 .count = 7,
                                                 .spread = 180,
                                                 .length = 22})})});
    }};
