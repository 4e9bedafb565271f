// Elecampane, Inula helenium: huge woolly pointed leaves, large yellow heads with many very thin rays.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_324_aunee", [](Plate& p) {
        herb(p, {.foot = {200, 346},
                 .height = 236,
                 .stems = {-78, 78, 0},
                 .stemRadius = 3.6,
                 .stemPalette = palettes::greygreen,
                 .leaf = {.shape = shapes::ovate,
                          .margin = serrate(14, 0.06),
                          .veins = 8,
                          .pucker = 0.24,
                          .petiole = 0.02,
                          .palette = mix(palettes::leaf, palettes::greygreen, 0.3)},
                 .leaves = 4,
                 .leavesFrom = 0.14,
                 .leavesTo = 0.8,
                 .leafLength = 100,
                 .topLeafLength = 52,
                 .leafWidth = 24,
                 .topLeafWidth = 14,
                 .leafAngle = 52,
                 .basal = 2,
                 .basalLength = 130,
                 .basalWidth = 28,
                 .basalSpread = 72,
                 .inflorescence = solitary(composites({.rays = 46,
                                                       .length = 34,
                                                       .width = 1.5,
                                                       .shape = {0.7, 1, 1, 1, 0.9, 0.3},
                                                       .palette = palettes::yellow,
                                                       .disc = 17,
                                                       .dome = 0.3,
                                                       .discPalette = palettes::gold,
                                                       .baseAngle = 66,
                                                       .tipAngle = 90,
                                                       .tilt = 62,
                                                       .involucre = 15}))});
    }};
