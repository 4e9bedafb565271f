// Romaine lettuce, Lactuca sativa var. longifolia: a tall head of upright spoon-shaped leaves, tied round
// with bast.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/LeafHead.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_202_romaine", [](Plate& p) {
        ground(p, 130, 270, 321, 5);
        leafHead(p, {200, 330},
                 {.leaves = 20,
                  .innerLength = 200,
                  .outerLength = 236,
                  .innerWidth = 34,
                  .outerWidth = 48,
                  .innerBase = 2,
                  .innerTip = -4,
                  .outerBase = 22,
                  .outerTip = 6,
                  .shape = {0.42, 0.5, 0.68, 0.92, 1, 0.86, 0},
                  .cup = 1.1,
                  .curl = 16,
                  .ruffle = 3.5,
                  .palette = mix(palettes::leafy, palettes::cream, 0.15),
                  .rib = 0.3,
                  .pucker = 0.1,
                  .tilt = 12});
        for (const double y : {206.0, 213.0})
            tube(p, {{136, y - 6}, {166, y + 5}, {200, y + 8}, {234, y + 5}, {264, y - 6}}, 3,
                 {.palette = palettes::straw, .spacing = 2.4});
    }};
