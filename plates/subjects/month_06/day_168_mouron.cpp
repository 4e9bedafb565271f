// Scarlet pimpernel, Anagallis arvensis: creeping square stems, stalkless ovate leaves in pairs, single
// scarlet five-petalled flowers on thin stalks from their axils.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_168_mouron", [](Plate& p) {
        herb(p, {.height = 200,
                 .stems = {-104, 104, 0},
                 .stemRadius = 2.4,
                 .leaf = {.shape = shapes::ovate, .veins = 3, .petiole = 0},
                 .arrangement = Arrangement::opposite,
                 .leaves = 6,
                 .leavesFrom = 0.14,
                 .leavesTo = 0.96,
                 .leafLength = 58,
                 .topLeafLength = 38,
                 .leafWidth = 17,
                 .topLeafWidth = 12,
                 .leafAngle = 62,
                 .root = RootKind::fibrous,
                 .inflorescence = raceme({.flower = flowers({.petals = 5,
                                                             .length = 23,
                                                             .width = 13.5,
                                                             .baseAngle = 74,
                                                             .tipAngle = 90,
                                                             .shape = shapes::orbicular,
                                                             .palette = palettes::scarlet,
                                                             .tilt = 64,
                                                             .eye = 2.6,
                                                             .eyePalette = palettes::purple,
                                                             .stamens = 5,
                                                             .stamenLength = 0.4}),
                                          .nodes = 2,
                                          .from = 0.62,
                                          .perNode = 2,
                                          .angle = 62,
                                          .pedicel = 36,
                                          .smallest = 0.9})});
    }};
