// Charlock, Sinapis arvensis: coarse lyrate leaves below, racemes of four-petalled yellow flowers, beaked
// pods under them.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"
#include "plates/engraver/botany/Pod.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_239_seneve", [](Plate& p) {
        herb(p, {.height = 236,
                 .stems = {-66, 66, 0},
                 .stemRadius = 3,
                 .hairs = 30,
                 .leaf = {.shape = shapes::obovate, .margin = lobed(3, 0.4), .veins = 5, .petiole = 0.16},
                 .leaves = 4,
                 .leavesFrom = 0.12,
                 .leavesTo = 0.5,
                 .leafLength = 112,
                 .topLeafLength = 58,
                 .leafWidth = 27,
                 .topLeafWidth = 14,
                 .leafAngle = 56,
                 .root = RootKind::taproot,
                 .inflorescence = together(
                     {raceme({.flower =
                                  [](Plate& plate, Point at, double degrees, double scale, int side) {
                                      const double way = side > 0 ? std::min(degrees, -38.0)
                                                         : std::max(degrees, -142.0) < -90
                                                             ? std::max(degrees, -142.0)
                                                             : -142.0;
                                      pod(plate,
                                          {at, polar(at, way, 15 * scale),
                                           polar(at, way - side * 8, 32 * scale)},
                                          {.width = 2.6, .seeds = 4, .open = false});
                                  },
                              .nodes = 4,
                              .from = 0.56,
                              .to = 0.76,
                              .angle = 52,
                              .pedicel = 8,
                              .smallest = 0.7}),
                      raceme({.flower = flowers({.petals = 4,
                                                 .length = 17,
                                                 .width = 8,
                                                 .baseAngle = 72,
                                                 .tipAngle = 90,
                                                 .shape = {0.25, 0.5, 0.95, 1, 0.75, 0},
                                                 .palette = palettes::yellow,
                                                 .tilt = 74,
                                                 .stamens = 4,
                                                 .stamenLength = 0.4,
                                                 .washLift = 0.2}),
                              .nodes = 4,
                              .from = 0.8,
                              .to = 1,
                              .perNode = 2,
                              .angle = 78,
                              .pedicel = 22,
                              .smallest = 0.5})})});
    }};
