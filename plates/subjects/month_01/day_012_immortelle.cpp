// Everlasting, Helichrysum: white-felted linear leaves, heads of papery yellow scales in layers about a flat
// disc, no green rays.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_012_immortelle", [](Plate& p) {
        herb(p, {.height = 204,
                 .stems = {-62, 62, 0},
                 .stemRadius = 2.4,
                 .stemPalette = palettes::greygreen,
                 .leaf = {.shape = shapes::linear,
                          .parallel = true,
                          .petiole = 0,
                          .palette = palettes::greygreen},
                 .leaves = 9,
                 .leavesFrom = 0.05,
                 .leavesTo = 0.85,
                 .leafLength = 62,
                 .topLeafLength = 30,
                 .leafWidth = 3.4,
                 .topLeafWidth = 2.4,
                 .leafAngle = 36,
                 .root = RootKind::fibrous,
                 .inflorescence = corymb({.flower = composites({.rays = 12,
                                                                .length = 19,
                                                                .width = 6,
                                                                .shape = shapes::ovate,
                                                                .palette = palettes::yellow,

                                                                .rings = 2,
                                                                .disc = 8,
                                                                .dome = 0.3,
                                                                .discPalette = palettes::orange,
                                                                .baseAngle = 62,
                                                                .tipAngle = 86,
                                                                .notch = 0,
                                                                .tilt = 60,
                                                                .involucre = 8,
                                                                .washLift = 0.12}),
                                          .count = 3,
                                          .spread = 104,
                                          .length = 34})});
    }};
