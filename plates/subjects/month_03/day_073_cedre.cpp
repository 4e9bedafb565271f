// Cedar, Cedrus libani: a broad tree of level boughs like shelves; a barrel-shaped cone that stands upright
// among tufts of short needles.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Conifer.h"
#include "plates/engraver/botany/Habit.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_073_cedre", [](Plate& p) {
        struct Shelf {
            double y, left, right;
        };
        const Point foot{268, 338};
        tube(p, {foot, {266, 260}, {272, 180}, {268, 118}}, {13, 10, 7, 2.4},
             {.palette = palettes::bark, .rough = 0.12});
        for (const Shelf& s : {Shelf{112, 22, 26}, Shelf{140, 50, 40}, Shelf{172, 62, 78}, Shelf{206, 92, 70},
                               Shelf{242, 84, 98}, Shelf{276, 60, 66}}) {
            for (const auto& [reach, side] : {std::pair{s.left, -1.0}, {s.right, 1.0}}) {
                const Point from{268, s.y + 16}, end{268 + side * reach * 0.86, s.y + 3};
                tube(p, {from, lerp(from, end, 0.5) + Point{0, -2}, end}, {4, 1.4},
                     {.palette = palettes::bark});
                for (const double u : {0.86, 0.42})
                    foliageClump(p,
                                 {268 + side * reach * u * 0.82, s.y + 1 - 3 * (1 - u) + p.random.around(2)},
                                 reach * 0.3 + 5, 10, palettes::darkleaf, 2.8, 0.04);
            }
            foliageClump(p, {268 + p.random.around(5), s.y - 4}, 0.2 * (s.left + s.right) + 4, 9,
                         palettes::darkleaf, 2.8, 0);
        }
        ground(p, 190, 346, 338, 4);
        const Path bough{{36, 236}, {80, 224}, {124, 218}, {172, 196}};
        needleTufts(p, bough, 6, 22, 25, palettes::bluegreen, 190);
        tube(p, bough, {6, 5, 4, 2}, {.palette = palettes::bark, .rough = 0.16});
        cone(p, {102, 222}, -90,
             {.length = 104,
              .radius = 37,
              .shape = {0.62, 0.94, 1, 1, 0.95, 0.8, 0.45},
              .rows = 13,
              .perRow = 6,
              .palette = mix(palettes::brown, palettes::greygreen, 0.25),
              .spread = 4,
              .scaleShape = shapes::orbicular});
        needleTufts(p, {{60, 230}, {104, 224}, {146, 212}}, 4, 20, 21, palettes::leaf, 160);
    }};
