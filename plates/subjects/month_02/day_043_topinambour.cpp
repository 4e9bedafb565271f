// Jerusalem artichoke, Helianthus tuberosus: knobbly rosy tubers at the foot, rough ovate leaves, small
// yellow sunflower heads.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"
#include "plates/engraver/botany/RootVegetable.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_043_topinambour", [](Plate& p) {
        for (const Path& runner :
             {Path{{194, 246}, {160, 256}, {132, 266}}, Path{{206, 246}, {244, 254}, {276, 264}},
              Path{{200, 246}, {200, 276}, {202, 292}}})
            tube(p, runner, {2.6, 1.8}, {.palette = palettes::root});
        rootlets(p, {200, 246}, 16, 90, 130, 30);
        const Palette rosy = mix(palettes::root, palettes::rose, 0.5);
        const auto knob = [&](Point at, double degrees, double size) {
            tuber(p, polar(at, degrees + 180, 17 * size),
                  {.length = 24 * size,
                   .width = 22 * size,
                   .direction = degrees,
                   .knobs = 0.14,
                   .eyes = 1,
                   .palette = rosy});
            tuber(p, polar(at, degrees - 70, 15 * size),
                  {.length = 22 * size,
                   .width = 20 * size,
                   .direction = degrees - 60,
                   .knobs = 0.14,
                   .eyes = 1,
                   .palette = rosy});
            tuber(p, polar(at, degrees + 60, 15 * size),
                  {.length = 24 * size,
                   .width = 20 * size,
                   .direction = degrees + 60,
                   .knobs = 0.14,
                   .eyes = 1,
                   .palette = rosy});
            tuber(p, at,
                  {.length = 58 * size,
                   .width = 34 * size,
                   .direction = degrees,
                   .knobs = 0.16,
                   .eyes = 6,
                   .palette = rosy});
        };
        knob({112, 276}, 168, 1);
        knob({292, 274}, 14, 1);
        knob({202, 314}, 4, 1.1);
        herb(p, {.foot = {200, 250},
                 .height = 148,
                 .stems = {-40, 44},
                 .stemRadius = 3.4,
                 .hairs = 24,
                 .leaf = {.shape = shapes::ovate, .margin = serrate(10, 0.1), .veins = 6, .petiole = 0.2},
                 .leaves = 4,
                 .leavesFrom = 0.2,
                 .leavesTo = 0.84,
                 .leafLength = 94,
                 .topLeafLength = 60,
                 .leafWidth = 20,
                 .topLeafWidth = 13,
                 .leafAngle = 62,
                 .inflorescence =
                     solitary(composites({.rays = 13,
                                          .length = 34,
                                          .width = 7.4,
                                          .palette = palettes::yellow,
                                          .disc = 11,
                                          .discPalette = mix(palettes::orange, palettes::brown, 0.4),
                                          .baseAngle = 70,
                                          .tipAngle = 86,
                                          .notch = 0,
                                          .tilt = 58,
                                          .involucre = 10,
                                          .washLift = 0.3}))});
        ground(p, 70, 330, 250, 3);
    }};
