// Cabbage lettuce, Lactuca sativa: a low round heart of soft pale leaves with frilled rims, lying on the
// ground.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/LeafHead.h"

using namespace tambrelle::engraver;

static const Subject subject{"day_196_laitue", [](Plate& p) {
                                 ground(p, 90, 310, 262, 5);
                                 leafHead(p, {200, 250},
                                          {.leaves = 24,
                                           .innerLength = 62,
                                           .outerLength = 108,
                                           .innerWidth = 34,
                                           .outerWidth = 54,
                                           .innerBase = 20,
                                           .innerTip = -50,
                                           .outerBase = 60,
                                           .outerTip = 84,
                                           .cup = 1.0,
                                           .ruffle = 5,
                                           .ruffleTurns = 13,
                                           .palette = mix(palettes::leafy, palettes::cream, 0.35),
                                           .rib = 0.2,
                                           .pucker = 0.12,
                                           .tilt = 40});
                             }};
