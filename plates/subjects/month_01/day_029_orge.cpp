// Two-row barley, Hordeum distichum: a flat ear like a feather, one rank of grains to either side of its axis
// and very long awns fanned out in the ear's plane; two grains stand at each joint (cut across, below).

#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/AwnedEar.h"
#include "plates/engraver/botany/Cereal.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_029_orge", [](Plate& p) {
        strapLeaf(p, {112, 322}, -160, 72, 7, 46, palettes::oldleaf);
        strapLeaf(p, {116, 318}, -22, 108, 8, 44, palettes::oldleaf);
        stem(p, {{98, 356}, {116, 318}, {142, 276}}, {3.2, 2.4}, palettes::straw);
        awnedEar(p, {{140, 280}, {186, 220}, {232, 158}},
                 {.joints = 13,
                  .breadth = 3,
                  .grain = 43,
                  .plumpness = 0.26,
                  .lean = 32,
                  .awn = {176, 108},
                  .awnLean = {27, 5},
                  .awnWidth = 1.1,
                  .palette = palettes::straw});
        earSection(p, {288, 306},
                   {.grains = {0, 180}, .length = 38, .width = 12, .palette = palettes::straw});
    }};
