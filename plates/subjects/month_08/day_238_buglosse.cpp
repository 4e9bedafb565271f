// Bugloss, Anchusa officinalis: bristly lance leaves, coils of deep blue five-lobed flowers with a white
// eye.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_238_buglosse", [](Plate& p) {
        herb(p, {.height = 206,
                 .stems = {-70, 70, 0},
                 .stemRadius = 3,
                 .hairs = 60,
                 .leaf = {.shape = shapes::lance,
                          .veins = 4,
                          .petiole = 0,
                          .palette = mix(palettes::leaf, palettes::greygreen, 0.4)},
                 .leaves = 8,
                 .leavesFrom = 0.1,
                 .leavesTo = 0.82,
                 .leafLength = 100,
                 .topLeafLength = 46,
                 .leafWidth = 10,
                 .topLeafWidth = 6,
                 .leafAngle = 46,
                 .root = RootKind::taproot,
                 .inflorescence =
                     coiledCyme({.flower = flowers({.length = 14,
                                                    .width = 6.4,
                                                    .baseAngle = 74,
                                                    .tipAngle = 90,
                                                    .shape = shapes::orbicular,
                                                    .palette = mix(palettes::blue, palettes::violet, 0.2),
                                                    .tilt = 76,
                                                    .tube = 6,
                                                    .eye = 2.8,
                                                    .eyePalette = palettes::whiteflower,
                                                    .washLift = 0.2}),
                                 .count = 6,
                                 .length = 68,
                                 .radius = 15,
                                 .smallest = 0.4,
                                 .branches = 2,
                                 .angle = 46})});
    }};
