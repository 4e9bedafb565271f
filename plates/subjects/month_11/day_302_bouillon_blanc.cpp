// Great mullein, Verbascum thapsus: a rosette of woolly leaves and one tall thick club of yellow flowers.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_302_bouillon_blanc", [](Plate& p) {
        herb(p, {.foot = {200, 344},
                 .height = 280,
                 .stems = {0},
                 .stemRadius = 5.2,
                 .tipRadius = 3,
                 .stemPalette = palettes::greygreen,
                 .leaf = {.shape = shapes::elliptic,
                          .margin = crenate(10, 0.06),
                          .veins = 7,
                          .pucker = 0.2,
                          .petiole = 0,
                          .palette = palettes::greygreen},
                 .leaves = 6,
                 .leavesFrom = 0.08,
                 .leavesTo = 0.42,
                 .leafLength = 104,
                 .topLeafLength = 46,
                 .leafWidth = 21,
                 .topLeafWidth = 11,
                 .leafAngle = 50,
                 .basal = 6,
                 .basalLength = 130,
                 .basalWidth = 27,
                 .basalSpread = 84,
                 .inflorescence = together({spike({.radius = 15,
                                                   .from = 0.42,
                                                   .shape = {0.75, 1, 1, 0.9, 0.7, 0.25},
                                                   .grain = 4,
                                                   .palette = palettes::greygreen,
                                                   .second = palettes::leafy}),
                                            raceme({.flower = flowers({.length = 12,
                                                                       .width = 7,
                                                                       .baseAngle = 66,
                                                                       .tipAngle = 90,
                                                                       .palette = palettes::yellow,
                                                                       .tilt = 60,
                                                                       .stamens = 5,
                                                                       .stamenLength = 0.5,
                                                                       .antherPalette = palettes::orange}),
                                                    .nodes = 9,
                                                    .from = 0.44,
                                                    .to = 0.86,
                                                    .perNode = 4,
                                                    .angle = 84,
                                                    .pedicel = 13,
                                                    .smallest = 0.7})})});
    }};
