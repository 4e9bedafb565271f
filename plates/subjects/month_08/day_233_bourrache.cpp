// Borage, Borago officinalis: a bristly plant with ovate leaves, blue five-pointed stars with a black cone
// of anthers.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_233_bourrache", [](Plate& p) {
        const FlowerForm star{.length = 22,
                              .width = 7,
                              .baseAngle = 82,
                              .tipAngle = 92,
                              .shape = {0.7, 1, 0.9, 0.6, 0},
                              .palette = palettes::blue,
                              .cup = 3,
                              .tilt = 76,
                              .sepals = 5};
        herb(p, {.height = 226,
                 .stems = {-60, 62, 0},
                 .stemRadius = 4,
                 .hairs = 70,
                 .leaf = {.shape = shapes::ovate, .margin = wavy(4, 0.06), .veins = 6, .petiole = 0.1},
                 .leaves = 4,
                 .leavesFrom = 0.16,
                 .leavesTo = 0.72,
                 .leafLength = 96,
                 .topLeafLength = 54,
                 .leafWidth = 24,
                 .topLeafWidth = 14,
                 .leafAngle = 56,
                 .root = RootKind::taproot,
                 .inflorescence = together(
                     {corymb({.flower =
                                  [star](Plate& plate, Point at, double degrees, double scale, int) {
                                      flower(plate, at, degrees, star, scale);
                                      const Point eye = polar(at, degrees, 1);
                                      plate.dot(eye, 6 * scale, Colour(0xFFFFFF));
                                      lathe(plate, eye, 12 * scale, {4 * scale, 2.6 * scale, 0.4},
                                            {.direction = degrees, .tilt = 0.5, .palette = palettes::black});
                                  },
                              .count = 3,
                              .spread = 150,
                              .length = 38}),
                      corymb({.flower = berries(4, mix(palettes::leaf, palettes::violet, 0.3), 1.5),
                              .count = 3,
                              .spread = 60,
                              .length = 20})})});
    }};
