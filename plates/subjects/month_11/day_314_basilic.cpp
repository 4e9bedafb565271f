// Basil, Ocimum basilicum: glossy puffed ovate leaves in opposite pairs, spikes of white two-lipped flowers
// in whorls; in its pot.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_314_basilic", [](Plate& p) {
        herb(p, {.foot = {200, 268},
                 .height = 196,
                 .stems = {-78, 78, 0},
                 .stemRadius = 3,
                 .leaf = {.shape = shapes::ovate,
                          .margin = serrate(6, 0.05),
                          .veins = 5,
                          .pucker = 0.3,
                          .petiole = 0.16,
                          .palette = palettes::leaf},
                 .arrangement = Arrangement::opposite,
                 .leaves = 5,
                 .leavesFrom = 0.12,
                 .leavesTo = 0.76,
                 .leafLength = 60,
                 .topLeafLength = 34,
                 .leafWidth = 19,
                 .topLeafWidth = 11,
                 .leafAngle = 58,
                 .inflorescence = raceme({.flower = lips(12, palettes::whiteflower),
                                          .nodes = 5,
                                          .from = 0.72,
                                          .perNode = 4,
                                          .angle = 76,
                                          .pedicel = 3,
                                          .smallest = 0.5})});
        lathe(p, {200, 346}, 84, {34, 40, 45, 48}, {.tilt = 0.2, .palette = palettes::terracotta});
        lathe(p, {200, 276}, 20, {54, 54}, {.tilt = 0.2, .palette = palettes::terracotta});
        ground(p, 130, 280, 346, 4);
    }};
