// Alkanet, Alkanna tinctoria: a thick dark red dyer's root, bristly lance leaves, coils of deep blue five-
// lobed flowers.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_294_orcanete", [](Plate& p) {
        tube(p, {{200, 226}, {204, 264}, {194, 304}, {202, 350}}, {17, 15, 10, 2},
             {.palette = palettes::beet, .lines = Lines::along, .tone = 0.1, .rough = 0.16});
        tube(p, {{206, 258}, {232, 290}, {242, 324}}, {6, 4, 1},
             {.palette = palettes::beet, .tone = 0.1, .rough = 0.12});
        tube(p, {{198, 268}, {170, 300}, {160, 330}}, {6, 4, 1},
             {.palette = palettes::beet, .tone = 0.1, .rough = 0.12});
        herb(p, {.foot = {200, 230},
                 .height = 164,
                 .stems = {-84, 86, -30, 34},
                 .stemRadius = 3,
                 .hairs = 44,
                 .leaf = {.shape = shapes::lance,
                          .veins = 0,
                          .petiole = 0,
                          .palette = mix(palettes::leaf, palettes::greygreen, 0.5)},
                 .leaves = 6,
                 .leavesFrom = 0.1,
                 .leavesTo = 0.8,
                 .leafLength = 60,
                 .topLeafLength = 34,
                 .leafWidth = 8,
                 .topLeafWidth = 5,
                 .leafAngle = 46,
                 .basal = 6,
                 .basalLength = 92,
                 .basalWidth = 9,
                 .basalSpread = 96,
                 .inflorescence =
                     coiledCyme({.flower = flowers({.length = 13,
                                                    .width = 8,
                                                    .baseAngle = 74,
                                                    .tipAngle = 90,
                                                    .shape = shapes::orbicular,
                                                    .palette = mix(palettes::blue, palettes::violet, 0.35),
                                                    .tilt = 60,
                                                    .tube = 8,
                                                    .eye = 2.4,
                                                    .eyePalette = palettes::purple,
                                                    .washLift = 0.22}),
                                 .count = 6,
                                 .length = 40,
                                 .radius = 9,
                                 .smallest = 0.5})});
    }};
