// Apricot, Prunus armeniaca: round heart-based leaves, an orange globe with a seam; a half with its smooth
// stone.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Branch.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/botany/RootVegetable.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_313_abricot", [](Plate& p) {
        branch(p, {.spine = {{96, 76}, {160, 60}, {230, 68}, {312, 54}},
                   .leaf = {.shape = shapes::cordate,
                            .margin = crenate(16, 0.07),
                            .veins = 6,
                            .petiole = 0.26,
                            .stalk = palettes::redstem},
                   .leaves = {{0.06, 140, 84, 25},
                              {0.3, -130, 64, 20},
                              {0.62, -50, 66, 21},
                              {0.7, 64, 90, 27},
                              {0.98, 24, 84, 25},
                              {0.2, 100, 70, 22}},
                   .fruits = {{0.2, hangingPome({.length = 86,
                                                 .shape = {12, 32, 42, 47, 50, 50, 49, 45, 39, 28, 6},
                                                 .palette = palettes::orange,
                                                 .blush = mix(palettes::orange, palettes::scarlet, 0.4),
                                                 .stalk = 10,
                                                 .direction = 96,
                                                 .calyx = 0,
                                                 .suture = true})},
                              {0.52, hangingPome({.length = 92,
                                                  .shape = {12, 34, 44, 50, 53, 53, 52, 48, 41, 30, 6},
                                                  .palette = palettes::orange,
                                                  .blush = mix(palettes::orange, palettes::scarlet, 0.4),
                                                  .stalk = 12,
                                                  .direction = 94,
                                                  .calyx = 0,
                                                  .suture = true})}}});
        ground(p, 232, 346, 270, 3);
        cutFace(p, {290, 222},
                {.radius = 46,
                 .squash = 0.92,
                 .rind = palettes::orange,
                 .flesh = mix(palettes::orange, palettes::cream, 0.3),
                 .rindWidth = 0.07,
                 .stone = 0.46,
                 .stonePalette = palettes::fawn});
    }};
