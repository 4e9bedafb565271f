// Plum, Prunus domestica: an egg of violet under a pale bloom with a seam; ovate crenate leaves; a golden
// half with a flat stone.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Branch.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/botany/RootVegetable.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_331_prune", [](Plate& p) {
        branch(p, {.spine = {{92, 78}, {160, 62}, {236, 70}, {322, 56}},
                   .leaf = {.shape = shapes::obovate,
                            .margin = crenate(16, 0.07),
                            .veins = 7,
                            .pucker = 0.22,
                            .petiole = 0.12},
                   .leaves = {{0.06, 136, 82, 20},
                              {0.26, -130, 66, 17},
                              {0.6, -48, 70, 18},
                              {0.74, 66, 86, 21},
                              {0.98, 22, 80, 19}},
                   .fruits = {{0.24, hangingPome({.length = 112,
                                                  .shape = {10, 31, 40, 43, 42, 37, 27, 6},
                                                  .palette = palettes::plum,
                                                  .blush = palettes::violet,
                                                  .stalk = 16,
                                                  .direction = 100,
                                                  .calyx = 0,
                                                  .suture = true})},
                              {0.5, hangingPome({.length = 118,
                                                 .shape = {10, 32, 42, 45, 44, 39, 28, 6},
                                                 .palette = palettes::plum,
                                                 .blush = palettes::blue,
                                                 .stalk = 18,
                                                 .direction = 86,
                                                 .calyx = 0,
                                                 .suture = true})}}});
        ground(p, 244, 350, 290, 3);
        cutFace(p, {296, 244},
                {.radius = 40,
                 .squash = 1.16,
                 .rind = palettes::plum,
                 .flesh = mix(palettes::yellow, palettes::leafy, 0.3),
                 .rindWidth = 0.08,
                 .stone = 0.5,
                 .stonePalette = palettes::fawn});
    }};
