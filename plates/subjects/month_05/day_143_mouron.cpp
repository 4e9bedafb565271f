// Chickweed, Stellaria media: weak stems with small ovate opposite leaves, white flowers whose five petals
// are cleft to the base.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_143_mouron", [](Plate& p) {
        const FlowerForm star{.petals = 10,
                              .length = 16,
                              .width = 3.5,
                              .baseAngle = 74,
                              .tipAngle = 90,
                              .shape = shapes::spatulate,
                              .palette = palettes::whiteflower,
                              .tilt = 66,
                              .eye = 3,
                              .eyePalette = palettes::leafy,
                              .stamens = 5,
                              .stamenLength = 0.5,
                              .antherPalette = palettes::crimson,
                              .sepals = 5,
                              .washLift = 0};
        herb(p,
             {.height = 190,
              .stems = {-122, 122, -58, 60, 0},
              .stemRadius = 2.2,
              .tipRadius = 1.6,
              .leaf = {.shape = shapes::ovate, .veins = 3, .petiole = 0.2},
              .arrangement = Arrangement::opposite,
              .leaves = 5,
              .leavesFrom = 0.16,
              .leavesTo = 0.92,
              .leafLength = 46,
              .topLeafLength = 32,
              .leafWidth = 13,
              .topLeafWidth = 9,
              .leafAngle = 62,
              .root = RootKind::fibrous,
              .inflorescence = corymb({.flower = flowers(star), .count = 3, .spread = 130, .length = 26})});
    }};
