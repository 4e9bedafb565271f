// Rampion, Campanula rapunculus: a white spindle root, a narrow spike of violet star-bells cut to five
// pointed lobes.

#include "plates/engraver/Maths.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"
#include "plates/engraver/botany/RootVegetable.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_061_raiponce", [](Plate& p) {
        rootVegetable(
            p, {.crown = {200, 248},
                .length = 74,
                .shape = {7, 12, 13, 11.5, 8.5, 5, 2},
                .tail = 24,
                .palette = mix(palettes::whiteflower, palettes::root, 0.35),
                .rough = 0.05,
                .lenticels = 14,
                .hairs = 8,
                .leaf = {.shape = shapes::spatulate, .margin = crenate(8, 0.06), .veins = 4, .petiole = 0.2},
                .leaves = 6,
                .leafLength = 98,
                .leafWidth = 14,
                .leafSpread = 82});
        herb(p, {.foot = {200, 252},
                 .height = 196,
                 .stems = {-48, 50, 0},
                 .stemRadius = 2.6,
                 .leaf = {.shape = shapes::lance, .veins = 3, .petiole = 0},
                 .leaves = 5,
                 .leavesFrom = 0.14,
                 .leavesTo = 0.62,
                 .leafLength = 60,
                 .topLeafLength = 28,
                 .leafWidth = 6,
                 .topLeafWidth = 4,
                 .leafAngle = 40,
                 .inflorescence = raceme({.flower = flowers({.length = 27,
                                                             .width = 9.4,
                                                             .baseAngle = 16,
                                                             .tipAngle = 76,
                                                             .shape = {0.85, 1, 0.95, 0.7, 0.4, 0},
                                                             .palette = palettes::violet,
                                                             .cup = 1.5,
                                                             .tilt = 34,
                                                             .marking =
                                                                 [](double u, double v) {
                                                                     return 0.18 * (1 - maths::smooth(0, 0.4,
                                                                                                      u)) +
                                                                            0.24 * maths::exp(-v * v * 120);
                                                                 },
                                                             .stamens = 1,
                                                             .stamenLength = 0.7,
                                                             .antherPalette = palettes::whiteflower,
                                                             .sepals = 5}),
                                          .nodes = 5,
                                          .from = 0.46,
                                          .to = 1,
                                          .perNode = 2,
                                          .angle = 58,
                                          .pedicel = 7,
                                          .smallest = 0.6})});
    }};
