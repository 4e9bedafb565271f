// Stock, Matthiola incana: a raceme of four-petalled violet flowers, soft grey lance leaves with smooth
// rims.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_283_giroflee", [](Plate& p) {
        herb(p,
             {.height = 268,
              .stems = {-74, 76, 0},
              .stemRadius = 3.8,
              .stemPalette = palettes::greygreen,
              .leaf = {.shape = shapes::lance, .veins = 4, .petiole = 0.04, .palette = palettes::greygreen},
              .leaves = 7,
              .leavesFrom = 0.08,
              .leavesTo = 0.52,
              .leafLength = 92,
              .topLeafLength = 58,
              .leafWidth = 10.5,
              .topLeafWidth = 7,
              .leafAngle = 46,
              .root = RootKind::taproot,
              .inflorescence =
                  raceme({.flower = flowers({.petals = 4,
                                             .length = 23,
                                             .width = 13.5,
                                             .baseAngle = 70,
                                             .tipAngle = 92,
                                             .palette = mix(palettes::violet, palettes::magenta, 0.45),
                                             .cup = 2.4,
                                             .notch = 0.08,
                                             .tilt = 64,
                                             .tube = 13,
                                             .tubeRadius = 3.4,
                                             .eye = 3,
                                             .eyePalette = palettes::leafy,
                                             .sepals = 4,
                                             .washLift = 0.12}),
                          .nodes = 6,
                          .from = 0.55,
                          .angle = 74,
                          .pedicel = 8,
                          .smallest = 0.5})});
    }};
