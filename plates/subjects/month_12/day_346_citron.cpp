// Lemon, Citrus limon: yellow fruit with a nipple and pitted rind, glossy leaves, a white flower; a cut face
// with segments.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Branch.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/botany/RootVegetable.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_346_citron", [](Plate& p) {
        branch(p,
               {.spine = {{84, 86}, {150, 64}, {236, 70}, {330, 56}},
                .bark = palettes::stem,
                .leaf = {.shape = shapes::ovate,
                         .margin = crenate(14, 0.04),
                         .veins = 7,
                         .petiole = 0.1,
                         .palette = palettes::leaf},
                .leaves = {{0.04, 124, 96, 21},
                           {0.24, -120, 70, 18},
                           {0.5, -64, 66, 18},
                           {0.72, 62, 92, 21},
                           {0.99, 20, 72, 18}},
                .fruits = {{0.4, hangingPome({.length = 136,
                                              .shape = {7, 25, 36, 43, 47, 49, 49, 46, 41, 33, 22, 12, 9, 3},
                                              .palette = palettes::yellow,
                                              .stalk = 10,
                                              .direction = 96,
                                              .calyx = 0,
                                              .dots = 90})}}});
        flower(p, {268, 66}, -96,
               {.length = 30,
                .width = 10,
                .baseAngle = 70,
                .tipAngle = 96,
                .shape = shapes::elliptic,
                .palette = palettes::whiteflower,
                .tips = palettes::pink,
                .tilt = 56,
                .eye = 3,
                .stamens = 10,
                .stamenLength = 0.4,
                .washLift = 0});
        ground(p, 232, 346, 294, 3);
        cutFace(p, {288, 242},
                {.radius = 50,
                 .squash = 0.96,
                 .rind = palettes::yellow,
                 .flesh = mix(palettes::cream, palettes::yellow, 0.4),
                 .rindWidth = 0.1,
                 .segments = 9});
    }};
