// Cherry, Prunus: pairs of glossy red fruits on long stalks from one bud, doubly toothed oval leaves.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Branch.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_289_cerise", [](Plate& p) {
        branch(p, {.spine = {{74, 82}, {150, 62}, {236, 70}, {330, 52}},
                   .radius = {5.4, 4.2, 2.4},
                   .leaf = {.shape = {0.2, 0.62, 0.9, 1, 0.86, 0.42, 0},
                            .margin = serrate(15, 0.11),
                            .veins = 8,
                            .petiole = 0.16},
                   .leaves = {
                       {0.1, 116, 124, 28}, {0.34, -130, 76, 18}, {0.97, 62, 128, 28}, {0.64, -50, 82, 19}}});
        const auto cherry = [&](Point from, Point top, double r) {
            stem(p, {from, lerp(from, top, 0.5) + Point{(top.x - from.x) * 0.18, -6}, top + Point{0, 5}},
                 {1.6, 1.8});
            ball(p, top + Point{0, r * 0.9}, r,
                 {.palette = mix(palettes::scarlet, palettes::crimson, 0.4),
                  .direction = -90,
                  .squash = 0.96,
                  .highlight = 0.3});
            p.stroke(spline({top + Point{-10, -1}, top + Point{0, 5}, top + Point{10, -1}}, 6),
                     {.width = 1.1});
        };
        cherry({202, 68}, {164, 186}, 34);
        cherry({202, 68}, {214, 214}, 36);
        cherry({210, 69}, {262, 174}, 34);
        ball(p, {206, 70}, 6, {.palette = palettes::bark});
    }};
