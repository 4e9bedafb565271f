// Tobacco, Nicotiana tabacum: huge clasping ovate leaves, a panicle of long pink trumpets.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Herb.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_286_tabac", [](Plate& p) {
        herb(p, {.height = 236,
                 .stems = {0},
                 .stemRadius = 5.4,
                 .tipRadius = 3,
                 .hairs = 24,
                 .leaf = {.shape = {0.45, 0.75, 1, 0.95, 0.66, 0.3, 0}, .veins = 8, .petiole = 0},
                 .leaves = 6,
                 .leavesFrom = 0.08,
                 .leavesTo = 0.64,
                 .leafLength = 148,
                 .topLeafLength = 76,
                 .leafWidth = 38,
                 .topLeafWidth = 17,
                 .leafAngle = 58,
                 .root = RootKind::taproot});
        struct Trumpet {
            Point from, at;
            double degrees;
        };
        for (const Trumpet& t : {Trumpet{{200, 132}, {152, 104}, -160}, Trumpet{{200, 132}, {250, 106}, -22},
                                 Trumpet{{200, 118}, {166, 76}, -132}, Trumpet{{200, 118}, {238, 76}, -46},
                                 Trumpet{{200, 104}, {202, 66}, -90}}) {
            stem(p, {t.from, lerp(t.from, t.at, 0.5) + Point{0, 4}, t.at}, {2.6, 2});
            flower(p, polar(t.at, t.degrees, 42), t.degrees,
                   {.length = 21,
                    .width = 13,
                    .baseAngle = 56,
                    .tipAngle = 96,
                    .shape = {0.8, 1, 0.9, 0.55, 0},
                    .palette = mix(palettes::pink, palettes::rose, 0.6),
                    .cup = 2.4,
                    .tilt = 40,
                    .tube = 44,
                    .tubeRadius = 6,
                    .eye = 4,
                    .eyePalette = palettes::cream,
                    .stamens = 5,
                    .stamenLength = 0.4});
            ball(p, polar(t.at, t.degrees, 5), 8.4,
                 {.palette = palettes::leaf, .direction = t.degrees, .squash = 1.6});
        }
    }};
