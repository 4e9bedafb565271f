// Dogbane, Apocynum: opposite oblong leaves, cymes of small pink bells, long paired pods, one splitting on
// its silk.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/botany/Pod.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_338_apocyn", [](Plate& p) {
        herb(p, {.foot = {176, 346},
                 .height = 272,
                 .stems = {-54, 0},
                 .stemRadius = 2.8,
                 .stemPalette = palettes::redstem,
                 .leaf = {.shape = shapes::elliptic, .veins = 7, .petiole = 0.06},
                 .arrangement = Arrangement::opposite,
                 .leaves = 5,
                 .leavesFrom = 0.14,
                 .leavesTo = 0.8,
                 .leafLength = 78,
                 .topLeafLength = 46,
                 .leafWidth = 18,
                 .topLeafWidth = 12,
                 .leafAngle = 62,
                 .root = RootKind::rhizome,
                 .inflorescence = corymb({.flower = bells({.length = 17,
                                                           .radius = 8,
                                                           .lobes = 5,
                                                           .palette = palettes::rose,
                                                           .tilt = 30,
                                                           .sepals = 5}),
                                          .count = 9,
                                          .spread = 150,
                                          .length = 30})});
        for (int k = 0; k < 34; ++k) {
            const Point from{304 + p.random.around(3), 190 + k * 2.4};
            const double a = -30 + k * 2.2 + p.random.around(12);
            p.stroke(spline({from, polar(from, a, 17), polar(from, a - 10, 34)}),
                     {.width = 0.65, .swell = 0, .fade = 0.6});
            if (k % 4 == 0)
                ball(p, from + Point{1, 1}, 2.8,
                     {.palette = palettes::brown, .direction = 90, .squash = 1.6});
        }
        stem(p, {{186, 190}, {226, 140}, {262, 128}, {276, 142}}, {1.8, 1.6}, palettes::redstem);
        pod(p, {{275, 138}, {300, 196}, {298, 262}, {284, 318}},
            {.width = 6, .seeds = 0, .open = false, .palette = palettes::fawn});
        pod(p, {{275, 138}, {262, 196}, {250, 262}, {256, 322}},
            {.width = 5.4, .seeds = 0, .open = false, .palette = palettes::leafy});
    }};
