// Sweet orange, Citrus sinensis: a pitted golden globe, glossy leaves with winged stalks, a white blossom;
// a half with its segments.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Maths.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Branch.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/RootVegetable.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_054_orange", [](Plate& p) {
        branch(
            p,
            {.spine = {{74, 70}, {146, 54}, {226, 62}, {322, 46}},
             .radius = {5, 4, 2.6},
             .bark = palettes::stem,
             .leaf = {.shape = shapes::elliptic, .veins = 7, .petiole = 0.16, .palette = palettes::darkleaf},
             .leaves = {{0.08, 122, 96, 21},
                        {0.26, -138, 76, 18},
                        {0.62, -50, 84, 19},
                        {0.74, 52, 96, 20},
                        {0.98, 18, 84, 19}},
             .fruits = {{0.42, hangingPome({.length = 118,
                                            .shape =
                                                +[](double q) {
                                                    return 4 +
                                                           58 * maths::pow(maths::sin(maths::pi *
                                                                                      maths::pow(q, 0.95)),
                                                                           0.58);
                                                },
                                            .palette = palettes::orange,
                                            .tilt = 0.1,
                                            .stalk = 10,
                                            .direction = 93,
                                            .calyx = 0,
                                            .dots = 260})}}});
        flower(p, {262, 92}, 44,
               {.length = 26,
                .width = 8.6,
                .baseAngle = 50,
                .tipAngle = 96,
                .palette = palettes::whiteflower,
                .tilt = 44,
                .stamens = 10,
                .stamenLength = 0.5,
                .sepals = 5,
                .washLift = 0});
        ground(p, 226, 350, 300, 4);
        cutFace(p, {286, 246},
                {.radius = 52,
                 .squash = 0.95,
                 .rind = palettes::orange,
                 .flesh = mix(palettes::orange, palettes::yellow, 0.35),
                 .rindWidth = 0.1,
                 .segments = 10});
    }};
