// Tuberose, Polianthes tuberosa: a spike of waxy white six-petalled stars on long tubes in pairs, rosy buds
// on top, narrow leaves.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_336_tubereuse", [](Plate& p) {
        herb(p, {.foot = {200, 346},
                 .height = 280,
                 .stems = {0},
                 .stemRadius = 4.4,
                 .tipRadius = 2.4,
                 .leaf = {.shape = shapes::lance, .parallel = true, .petiole = 0},
                 .leaves = 4,
                 .leavesFrom = 0.14,
                 .leavesTo = 0.4,
                 .leafLength = 72,
                 .topLeafLength = 40,
                 .leafWidth = 6,
                 .topLeafWidth = 4,
                 .leafAngle = 40,
                 .basal = 7,
                 .basalLength = 140,
                 .basalWidth = 7,
                 .basalSpread = 66,
                 .basalLeaf = LeafKind{.shape = shapes::linear, .parallel = true, .petiole = 0},
                 .inflorescence = together({raceme({.flower = berries(6, palettes::pink, 1.7),
                                                    .nodes = 3,
                                                    .from = 0.9,
                                                    .to = 1,
                                                    .perNode = 2,
                                                    .angle = 40,
                                                    .pedicel = 5,
                                                    .smallest = 0.7}),
                                            raceme({.flower = flowers({.petals = 6,
                                                                       .length = 23,
                                                                       .width = 8.5,
                                                                       .baseAngle = 62,
                                                                       .tipAngle = 92,
                                                                       .shape = {0.5, 0.85, 1, 0.9, 0.6, 0},
                                                                       .palette = palettes::whiteflower,
                                                                       .tips = palettes::cream,
                                                                       .tilt = 54,
                                                                       .tube = 17,
                                                                       .tubeRadius = 3.4,
                                                                       .eye = 2.4,
                                                                       .washLift = 0}),
                                                    .nodes = 5,
                                                    .from = 0.46,
                                                    .to = 0.88,
                                                    .perNode = 3,
                                                    .angle = 66,
                                                    .pedicel = 20,
                                                    .smallest = 0.66})})});
    }};
