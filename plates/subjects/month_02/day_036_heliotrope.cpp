// Heliotrope, Heliotropium arborescens: ovate leaves wrinkled by sunken veins, coils of small lilac-violet
// flowers set on one side.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_036_heliotrope", [](Plate& p) {
        herb(p, {.height = 190,
                 .stems = {-54, 56, 0},
                 .stemRadius = 3.2,
                 .stemPalette = mix(palettes::stem, palettes::bark, 0.4),
                 .hairs = 24,
                 .leaf = {.shape = shapes::ovate,
                          .veins = 9,
                          .pucker = 0.34,
                          .petiole = 0.14,
                          .palette = palettes::darkleaf},
                 .leaves = 5,
                 .leavesFrom = 0.12,
                 .leavesTo = 0.84,
                 .leafLength = 92,
                 .topLeafLength = 64,
                 .leafWidth = 19,
                 .topLeafWidth = 14,
                 .leafAngle = 62,
                 .root = RootKind::fibrous,
                 .inflorescence = together(
                     {coiledCyme({.flower = flowers({.length = 10,
                                                     .width = 6.6,
                                                     .baseAngle = 74,
                                                     .tipAngle = 90,
                                                     .shape = shapes::orbicular,
                                                     .palette = palettes::violet,
                                                     .tilt = 62,
                                                     .tube = 6,
                                                     .eye = 2.2,
                                                     .eyePalette = palettes::whiteflower}),
                                  .count = 10,
                                  .length = 58,
                                  .radius = 13,
                                  .smallest = 0.5,
                                  .branches = 2,
                                  .angle = 54}),
                      coiledCyme({.flower = flowers({.length = 9,
                                                     .width = 6,
                                                     .baseAngle = 74,
                                                     .tipAngle = 90,
                                                     .shape = shapes::orbicular,
                                                     .palette = mix(palettes::violet, palettes::purple, 0.4),
                                                     .tilt = 62,
                                                     .tube = 6,
                                                     .eye = 2,
                                                     .eyePalette = palettes::whiteflower}),
                                  .count = 9,
                                  .length = 46,
                                  .radius = 11,
                                  .smallest = 0.5,
                                  .branches = 2,
                                  .angle = 20})})});
    }};
