// Field mushroom, Agaricus campestris: a white cap with a rolled rim, pink gills, a ring on the stem; a
// button beside it.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Cryptogam.h"

using namespace tambrelle::engraver;

static const Subject subject{"day_218_champignon", [](Plate& p) {
                                 ground(p, 84, 326, 296, 5);
                                 mushroom(p, {212, 296},
                                          {.cap = 84,
                                           .capHeight = 50,
                                           .stem = 98,
                                           .stemRadius = 21,
                                           .palette = palettes::cream,
                                           .gills = palettes::rose,
                                           .tilt = 0.28});
                                 mushroom(p, {114, 300},
                                          {.cap = 36,
                                           .capHeight = 34,
                                           .stem = 40,
                                           .stemRadius = 13,
                                           .palette = palettes::cream,
                                           .gills = palettes::rose,
                                           .tilt = 0.12,
                                           .ring = false});
                                 grassTufts(p, 90, 320, 300, 9);
                             }};
