// Mint, Mentha: square stems, toothed opposite leaves, spikes of lilac whorls.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_291_menthe", [](Plate& p) {
        herb(p,
             {.height = 266,
              .stems = {-70, 72, 0},
              .stemRadius = 3.2,
              .stemPalette = mix(palettes::stem, palettes::redstem, 0.4),
              .leaf = {.shape = shapes::ovate,
                       .margin = serrate(10, 0.16),
                       .veins = 6,
                       .pucker = 0.26,
                       .petiole = 0.05},
              .arrangement = Arrangement::opposite,
              .leaves = 5,
              .leavesFrom = 0.08,
              .leavesTo = 0.66,
              .leafLength = 84,
              .topLeafLength = 48,
              .leafWidth = 23,
              .topLeafWidth = 13,
              .leafAngle = 66,
              .root = RootKind::rhizome,
              .inflorescence = raceme({.flower = florets(5.4, mix(palettes::lilac, palettes::violet, 0.3), 4),
                                       .nodes = 10,
                                       .from = 0.7,
                                       .perNode = 7,
                                       .angle = 80,
                                       .pedicel = 9,
                                       .smallest = 0.6})});
    }};
