// Apple, Malus domestica: a red-cheeked globe dimpled at the stalk, ovate crenate leaves; a half with its
// pips.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Maths.h"
#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Branch.h"
#include "plates/engraver/botany/RootVegetable.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_031_pomme", [](Plate& p) {
        branch(p, {.spine = {{72, 84}, {140, 62}, {220, 66}, {322, 46}},
                   .radius = {5.5, 4.4, 2.6},
                   .leaf = {.shape = shapes::ovate, .margin = crenate(14, 0.07), .veins = 7, .petiole = 0.2},
                   .leaves = {{0.1, 122, 92, 23},
                              {0.28, -136, 74, 19},
                              {0.62, -58, 78, 19},
                              {0.7, 42, 100, 23},
                              {0.97, 26, 82, 20}},
                   .fruits = {{0.42, hangingPome({.length = 106,
                                                  .shape =
                                                      +[](double q) {
                                                          return 5 + 58 * maths::pow(
                                                                              maths::sin(maths::pi *
                                                                                         maths::pow(q, 0.82)),
                                                                              0.6);
                                                      },
                                                  .palette = mix(palettes::yellow, palettes::red, 0.45),
                                                  .blush = palettes::scarlet,
                                                  .tilt = 0.1,
                                                  .stalk = 22,
                                                  .direction = 94,
                                                  .calyx = 6,
                                                  .dots = 26})}}});
        ground(p, 228, 350, 296, 4);
        cutFace(p, {290, 246},
                {.radius = 48,
                 .squash = 0.95,
                 .rind = palettes::red,
                 .flesh = palettes::cream,
                 .rindWidth = 0.05,
                 .pips = 5,
                 .pipsAt = 0.24});
        p.contour(closedSpline({{290, 216}, {310, 236}, {304, 262}, {290, 272}, {276, 262}, {270, 236}}),
                  0.7);
        stem(p, {{290, 204}, {292, 194}, {298, 184}}, {2, 2.6}, palettes::bark);
    }};
