#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/carpentry/Cooperage.h"

using namespace tambrelle::engraver;

// The vat of the vintage: an open tub of broad staves, wider below, with must up to a hand's breadth of its
// rim.
static const Subject subject{"day_010_cuve", [](Plate& p) {
                                 const LatheSurface vat = cask(p, {200, 290}, 152, {108, 89}, {.tilt = 0.32});
                                 mouth(p, vat,
                                       {.rim = 5.5, .liquid = palettes::grape, .level = 0.13, .staves = 16});
                                 ground(p, 66, 336, 312, 7);
                             }};
