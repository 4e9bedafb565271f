// Heliotrope, Heliotropium arborescens: ovate leaves wrinkled by sunken veins, coils of small lilac-violet
// flowers set on one side.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{"day_036_heliotrope", [](Plate& p) {
                                 const auto cymes = [](double length, double radius, double angle) {
                                     return coiledCyme({.flower = flowers({.length = 11,
                                                                           .width = 6.6,
                                                                           .baseAngle = 78,
                                                                           .tipAngle = 92,
                                                                           .shape = shapes::orbicular,
                                                                           .palette = palettes::violet,
                                                                           .tilt = 74,
                                                                           .eye = 2.4,
                                                                           .eyePalette = palettes::yellow}),
                                                        .count = 11,
                                                        .length = length,
                                                        .radius = radius,
                                                        .smallest = 0.4,
                                                        .branches = 2,
                                                        .angle = angle});
                                 };
                                 herb(p, {.height = 176,
                                          .stems = {0},
                                          .stemRadius = 4,
                                          .tipRadius = 2.6,
                                          .stemPalette = mix(palettes::stem, palettes::bark, 0.4),
                                          .hairs = 14,
                                          .leaf = {.shape = shapes::ovate,
                                                   .veins = 9,
                                                   .pucker = 0.34,
                                                   .petiole = 0.14,
                                                   .palette = palettes::darkleaf},
                                          .arrangement = Arrangement::alternate,
                                          .leaves = 6,
                                          .leavesFrom = 0.12,
                                          .leavesTo = 0.84,
                                          .leafLength = 118,
                                          .topLeafLength = 72,
                                          .leafWidth = 25,
                                          .topLeafWidth = 17,
                                          .leafAngle = 62,
                                          .root = RootKind::fibrous,
                                          .inflorescence = together({cymes(78, 20, 76), cymes(68, 22, 24)})});
                             }};
