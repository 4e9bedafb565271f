// Wallflower, Erysimum cheiri: lance leaves up a woody stem, racemes of four-petalled golden flowers flamed
// with brown.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_223_baton-dor", [](Plate& p) {
        herb(p,
             {.height = 206,
              .stems = {-66, 64, 0},
              .stemRadius = 2.8,
              .leaf = {.shape = shapes::lance, .veins = 3, .petiole = 0.04, .palette = palettes::bluegreen},
              .leaves = 9,
              .leavesFrom = 0.1,
              .leavesTo = 0.66,
              .leafLength = 84,
              .topLeafLength = 52,
              .leafWidth = 9,
              .topLeafWidth = 6.5,
              .leafAngle = 42,
              .root = RootKind::taproot,
              .inflorescence =
                  together({raceme({.flower = flowers({.petals = 4,
                                                       .length = 19,
                                                       .width = 8.6,
                                                       .baseAngle = 74,
                                                       .tipAngle = 90,
                                                       .shape = {0.25, 0.5, 0.95, 1, 0.8, 0},
                                                       .palette = palettes::yellow,
                                                       .tips = palettes::orange,
                                                       .tilt = 72,
                                                       .marking =
                                                           [](double u, double v) {
                                                               return 0.5 * (1 - maths::smooth(0.1, 0.5, u)) +
                                                                      0.16 * maths::cos(v * 14) * (1 - u);
                                                           },
                                                       .stamens = 4,
                                                       .stamenLength = 0.3}),
                                    .nodes = 4,
                                    .from = 0.66,
                                    .perNode = 2,
                                    .angle = 74,
                                    .pedicel = 22,
                                    .smallest = 0.66}),
                            corymb({.flower = berries(3.4, mix(palettes::brown, palettes::red, 0.4), 1.6),
                                    .count = 5,
                                    .spread = 90,
                                    .length = 16})})});
    }};
