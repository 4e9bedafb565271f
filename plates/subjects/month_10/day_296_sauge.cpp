// Sage, Salvia officinalis: grey puckered oblong leaves in pairs, whorls of big violet two-lipped flowers.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_296_sauge", [](Plate& p) {
        herb(p, {.height = 270,
                 .stems = {-74, 76, 0},
                 .stemRadius = 3.6,
                 .stemPalette = mix(palettes::greygreen, palettes::redstem, 0.25),
                 .leaf = {.shape = {0.5, 0.85, 1, 0.98, 0.85, 0.5, 0},
                          .margin = crenate(16, 0.05),
                          .veins = 9,
                          .pucker = 0.34,
                          .petiole = 0.16,
                          .palette = palettes::greygreen},
                 .arrangement = Arrangement::opposite,
                 .leaves = 3,
                 .leavesFrom = 0.08,
                 .leavesTo = 0.42,
                 .leafLength = 104,
                 .topLeafLength = 70,
                 .leafWidth = 17,
                 .topLeafWidth = 11,
                 .leafAngle = 58,
                 .root = RootKind::taproot,
                 .inflorescence = raceme({.flower = lips(32, mix(palettes::violet, palettes::blue, 0.25)),
                                          .nodes = 4,
                                          .from = 0.56,
                                          .perNode = 4,
                                          .angle = 64,
                                          .pedicel = 5,
                                          .smallest = 0.62})});
    }};
