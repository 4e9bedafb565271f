// Pumpkin, Cucurbita pepo: round and ribbed, a tall five-angled stalk, one broad leaf and a tendril on the
// vine.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Gourd.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_017_citrouille", [](Plate& p) {
        ground(p, 88, 318, 262, 6);
        const Point foot = gourd(p, {200, 204}, {.width = 100, .height = 62});
        stem(p, {foot + Point{-2, -12}, {232, 128}, {266, 116}, {296, 124}}, {2.4, 2, 1.4});
        tendril(p, {284, 119}, -42, {.length = 20, .radius = 8, .hand = -1});
        palmateLeaf(p, {262, 117}, -58, 58,
                    {.lobes = {{-105, 0.7}, {-48, 0.88}, {0, 0.98}, {48, 0.88}, {105, 0.7}},
                     .sinus = 0.80,
                     .teeth = 4,
                     .toothHeight = 1.8});
    }};
