// Pear, Pyrus communis: a neck that swells into a dotted yellow-green belly, long stalk, glossy ovate
// leaves.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Branch.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_033_poire", [](Plate& p) {
        branch(p, {.spine = {{80, 74}, {150, 56}, {220, 64}, {322, 48}},
                   .radius = {5.5, 4.4, 2.6},
                   .leaf = {.shape = shapes::ovate, .margin = crenate(16, 0.05), .veins = 7, .petiole = 0.28},
                   .leaves = {{0.1, 112, 96, 21},
                              {0.3, -132, 70, 17},
                              {0.64, -54, 74, 18},
                              {0.8, 66, 100, 21},
                              {0.97, 20, 78, 19}},
                   .fruits = {{0.46, hangingPome({.length = 172,
                                                  .shape = {5, 15, 20, 25, 34, 47, 57, 60, 54, 40, 15},
                                                  .palette = mix(palettes::yellow, palettes::leafy, 0.4),
                                                  .blush = palettes::orange,
                                                  .tilt = 0.14,
                                                  .stalk = 26,
                                                  .direction = 92,
                                                  .calyx = 8,
                                                  .dots = 70})}}});
    }};
