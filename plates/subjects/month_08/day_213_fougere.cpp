// Male fern, Dryopteris filix-mas: twice-cut fronds in a shuttlecock, a young one still coiled.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Cryptogam.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{"day_213_fougere", [](Plate& p) {
                                 rootlets(p, {200, 322}, 14, 90, 140, 16);
                                 fern(p, {{196, 322}, {150, 240}, {84, 188}}, {.breadth = 34});
                                 fern(p, {{204, 322}, {252, 236}, {318, 182}}, {.breadth = 34});
                                 crozier(p, {208, 322}, {246, 262}, 9);
                                 crozier(p, {193, 322}, {160, 276}, 7);
                                 fern(p, {{200, 322}, {197, 220}, {206, 92}}, {.breadth = 46, .pinnae = 20});
                             }};
