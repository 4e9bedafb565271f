// Mugwort, Artemisia vulgaris: deeply cut leaves, white-felted beneath; narrow reddish panicles of tiny
// heads.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_307_armoise", [](Plate& p) {
        herb(p, {.foot = {200, 346},
                 .height = 250,
                 .stems = {-66, 66, 0},
                 .stemRadius = 3,
                 .stemPalette = palettes::redstem,
                 .leaf = {.shape = shapes::elliptic,
                          .margin = lobed(3.5, 0.66),
                          .veins = 4,
                          .slant = 0.34,
                          .petiole = 0.06,
                          .palette = mix(palettes::leaf, palettes::greygreen, 0.4)},
                 .leaves = 6,
                 .leavesFrom = 0.08,
                 .leavesTo = 0.66,
                 .leafLength = 92,
                 .topLeafLength = 44,
                 .leafWidth = 24,
                 .topLeafWidth = 9,
                 .leafAngle = 54,
                 .root = RootKind::rhizome,
                 .inflorescence =
                     panicle({.flower = berries(3.6, mix(palettes::redstem, palettes::greygreen, 0.35), 1.3),
                              .from = 0.52,
                              .branches = 10,
                              .perBranch = 8,
                              .width = 34,
                              .angle = 34})});
    }};
