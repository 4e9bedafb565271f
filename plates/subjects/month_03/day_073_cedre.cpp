// Cedar, Cedrus libani: tiers of level boughs; a barrel-shaped cone that stands upright among tufts of
// short needles.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Conifer.h"
#include "plates/engraver/botany/Habit.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_073_cedre", [](Plate& p) {
        treeHabit(p, {262, 330},
                  {.height = 178,
                   .crown = {30, 66, 70, 62, 48, 30, 8},
                   .bole = 0.16,
                   .trunk = 9,
                   .palette = palettes::darkleaf,
                   .clump = 0.34,
                   .tiers = 7});
        ground(p, 200, 340, 330, 3);
        const Path bough{{50, 216}, {110, 190}, {176, 186}, {230, 160}};
        needleTufts(p, bough, 9, 20, 22, palettes::bluegreen, 170);
        tube(p, bough, {6, 5, 4, 2}, {.palette = palettes::bark, .rough = 0.16});
        cone(p, {130, 190}, -90,
             {.length = 96,
              .radius = 32,
              .shape = {0.6, 0.92, 1, 1, 0.95, 0.8, 0.45},
              .rows = 16,
              .perRow = 7,
              .palette = mix(palettes::brown, palettes::tan, 0.3),
              .spread = 4,
              .scaleShape = shapes::orbicular});
        needleTufts(p, {{76, 208}, {130, 192}, {186, 186}}, 4, 18, 17, palettes::leaf, 150);
    }};
