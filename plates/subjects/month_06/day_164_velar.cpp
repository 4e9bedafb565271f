// Hedge mustard, Sisymbrium officinale: lyrate leaves, wiry wide branches with pods pressed close to them and
// a tuft of tiny yellow flowers at each tip.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"
#include "plates/engraver/botany/Pod.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_164_velar", [](Plate& p) {
        herb(p, {.height = 240,
                 .stems = {-120, 116, -58, 60, 0},
                 .stemRadius = 3,
                 .leaf = {.shape = shapes::obovate, .margin = lobed(3, 0.5), .veins = 4, .petiole = 0.12},
                 .leaves = 3,
                 .leavesFrom = 0.1,
                 .leavesTo = 0.4,
                 .leafLength = 92,
                 .topLeafLength = 48,
                 .leafWidth = 24,
                 .topLeafWidth = 12,
                 .leafAngle = 52,
                 .root = RootKind::taproot,
                 .inflorescence = together(
                     {[](Plate& plate, const Path& curve) {
                          for (int k = 0; k < 8; ++k) {
                              const double q = 0.46 + 0.06 * k, s = k % 2 == 0 ? 1 : -1,
                                           way = angleAlong(curve, q);
                              const Point at = polar(along(curve, q), way + 90, s * 2.6);
                              pod(plate, {at, polar(at, way + s * 9, 13), polar(at, way + s * 3, 28)},
                                  {.width = 2.1, .seeds = 4, .open = false});
                          }
                      },
                      corymb({.flower = flowers({.petals = 4,
                                                 .length = 8.5,
                                                 .width = 5,
                                                 .baseAngle = 70,
                                                 .tipAngle = 88,
                                                 .palette = palettes::yellow,
                                                 .tilt = 60,
                                                 .washLift = 0.22}),
                              .count = 7,
                              .spread = 180,
                              .length = 14})})});
    }};
