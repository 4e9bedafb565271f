// Lavender, Lavandula angustifolia: a tuft of narrow grey leaves, long bare stalks, short spikes of violet
// whorls.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_284_lavande", [](Plate& p) {
        herb(p, {.height = 268,
                 .stems = {-108, 108, -72, 72, -36, 38, 0},
                 .stemRadius = 1.9,
                 .stemPalette = palettes::greygreen,
                 .leaf = {.shape = shapes::linear,
                          .veins = 0,
                          .parallel = true,
                          .petiole = 0,
                          .palette = palettes::greygreen},
                 .arrangement = Arrangement::opposite,
                 .leaves = 3,
                 .leavesFrom = 0.1,
                 .leavesTo = 0.36,
                 .leafLength = 54,
                 .topLeafLength = 36,
                 .leafWidth = 3.2,
                 .topLeafWidth = 2.4,
                 .leafAngle = 30,
                 .basal = 14,
                 .basalLength = 84,
                 .basalWidth = 3.2,
                 .basalSpread = 84,
                 .root = RootKind::taproot,
                 .inflorescence = raceme({.flower = lips(15, mix(palettes::violet, palettes::blue, 0.3)),
                                          .nodes = 7,
                                          .from = 0.7,
                                          .perNode = 4,
                                          .angle = 56,
                                          .pedicel = 2,
                                          .smallest = 0.6})});
    }};
