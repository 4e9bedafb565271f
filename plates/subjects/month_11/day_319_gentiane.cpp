// Gentian, Gentiana: ribbed opposite leaves joined about the stem, upright deep-blue trumpets in their axils.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{"day_319_gentiane", [](Plate& p) {
                                 const FlowerAt trumpet =
                                     bells({.length = 46,
                                            .radius = 13,
                                            .shape = {0.3, 0.5, 0.68, 0.82, 0.95, 1.3},
                                            .lobes = 5,
                                            .lobeDepth = 0.3,
                                            .palette = mix(palettes::blue, palettes::violet, 0.25),
                                            .tilt = 34,
                                            .sepals = 5});
                                 herb(p, {.height = 218,
                                          .stems = {-58, 58, 0},
                                          .stemRadius = 3,
                                          .leaf = {.shape = shapes::ovate, .parallel = true, .petiole = 0},
                                          .arrangement = Arrangement::opposite,
                                          .leaves = 6,
                                          .leavesFrom = 0.1,
                                          .leavesTo = 0.97,
                                          .leafLength = 66,
                                          .topLeafLength = 42,
                                          .leafWidth = 14,
                                          .topLeafWidth = 9,
                                          .leafAngle = 58,
                                          .root = RootKind::taproot,
                                          .inflorescence = together({raceme({.flower = trumpet,
                                                                             .nodes = 2,
                                                                             .from = 0.64,
                                                                             .to = 0.86,
                                                                             .perNode = 2,
                                                                             .angle = 40,
                                                                             .pedicel = 5,
                                                                             .smallest = 0.86}),
                                                                     solitary(trumpet)})});
                             }};
