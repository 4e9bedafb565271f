// Cauliflower: a white curd of knobs, wrapped in broad blue-green leaves with thick pale ribs.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/LeafHead.h"

using namespace tambrelle::engraver;

static const Subject subject{"day_067_chou-fleur", [](Plate& p) {
                                 ground(p, 110, 292, 268, 5);
                                 leafHead(p, {200, 268},
                                          {.leaves = 9,
                                           .innerLength = 146,
                                           .outerLength = 152,
                                           .innerWidth = 60,
                                           .outerWidth = 62,
                                           .innerBase = 58,
                                           .innerTip = 6,
                                           .outerBase = 62,
                                           .outerTip = 14,
                                           .shape = {0.4, 0.7, 0.95, 1, 0.85, 0},
                                           .cup = 1.25,
                                           .curl = 26,
                                           .ruffle = 4,
                                           .ruffleTurns = 9,
                                           .palette = palettes::bluegreen,
                                           .rib = 0.22,
                                           .tilt = 30,
                                           .spacing = 2.1});
                                 curd(p, {200, 204}, {.width = 63, .height = 45, .knobs = 74, .grains = 5});
                             }};
