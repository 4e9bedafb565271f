// Rape, Brassica napus: glaucous clasping leaves, a raceme of yellow four-petalled crosses, slender upright
// pods.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"
#include "plates/engraver/botany/Pod.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_327_colza", [](Plate& p) {
        herb(p, {.foot = {200, 346},
                 .height = 266,
                 .stems = {-82, 82, 0},
                 .stemRadius = 3,
                 .stemPalette = palettes::bluegreen,
                 .leaf = {.shape = {0.9, 0.85, 0.9, 1, 0.7, 0.3, 0},
                          .margin = wavy(5, 0.1),
                          .veins = 6,
                          .petiole = 0,
                          .palette = palettes::bluegreen},
                 .leaves = 3,
                 .leavesFrom = 0.1,
                 .leavesTo = 0.44,
                 .leafLength = 92,
                 .topLeafLength = 50,
                 .leafWidth = 20,
                 .topLeafWidth = 12,
                 .leafAngle = 54,
                 .root = RootKind::taproot,
                 .inflorescence = together(
                     {raceme({.flower =
                                  [](Plate& plate, Point at, double degrees, double scale, int side) {
                                      pod(plate,
                                          {at, polar(at, degrees, 18 * scale),
                                           polar(at, degrees - side * 8, 38 * scale)},
                                          {.width = 2.8 * scale, .seeds = 7, .open = false});
                                  },
                              .nodes = 5,
                              .from = 0.46,
                              .to = 0.76,
                              .perNode = 2,
                              .angle = 46,
                              .pedicel = 9,
                              .smallest = 0.7}),
                      raceme({.flower = flowers({.petals = 4,
                                                 .length = 13,
                                                 .width = 7,
                                                 .baseAngle = 60,
                                                 .tipAngle = 88,
                                                 .palette = palettes::yellow,
                                                 .tilt = 58,
                                                 .stamens = 5,
                                                 .stamenLength = 0.35}),
                              .nodes = 5,
                              .from = 0.8,
                              .to = 1,
                              .perNode = 4,
                              .angle = 72,
                              .pedicel = 16,
                              .smallest = 0.7})})});
    }};
