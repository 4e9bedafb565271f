// Lemon balm, Melissa officinalis: opposite ovate leaves with rounded teeth and a netted surface, whorls of
// small white lipped flowers.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{"day_246_melisse", [](Plate& p) {
                                 herb(p, {.height = 236,
                                          .stems = {0},
                                          .stemRadius = 3.6,
                                          .leaf = {.shape = shapes::ovate,
                                                   .margin = crenate(9, 0.14),
                                                   .veins = 7,
                                                   .pucker = 0.3,
                                                   .petiole = 0.16,
                                                   .palette = palettes::leafy},
                                          .arrangement = Arrangement::opposite,
                                          .leaves = 5,
                                          .leavesFrom = 0.12,
                                          .leavesTo = 0.9,
                                          .leafLength = 110,
                                          .topLeafLength = 54,
                                          .leafWidth = 28,
                                          .topLeafWidth = 13,
                                          .leafAngle = 66,
                                          .root = RootKind::fibrous,
                                          .inflorescence = raceme({.flower = lips(23, palettes::whiteflower),
                                                                   .nodes = 4,
                                                                   .from = 0.34,
                                                                   .to = 0.92,
                                                                   .perNode = 4,
                                                                   .angle = 62,
                                                                   .pedicel = 4,
                                                                   .smallest = 0.7})});
                             }};
