// Hemp, Cannabis sativa: palmate leaves of seven narrow toothed leaflets, greenish clusters in the axils.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_021_chanvre", [](Plate& p) {
        herb(p, {.foot = {200, 350},
                 .height = 246,
                 .stems = {0},
                 .stemRadius = 4.2,
                 .tipRadius = 2,
                 .leaf = {.build = LeafKind::Build::digitate,
                          .shape = shapes::lance,
                          .margin = serrate(10, 0.3),
                          .veins = 6,
                          .petiole = 0.3,
                          .leaflets = 7,
                          .leafletWidth = 0.11},
                 .arrangement = Arrangement::opposite,
                 .leaves = 4,
                 .leavesFrom = 0.2,
                 .leavesTo = 0.92,
                 .leafLength = 150,
                 .topLeafLength = 66,
                 .leafWidth = 7,
                 .topLeafWidth = 3.6,
                 .leafAngle = 60,
                 .root = RootKind::taproot,
                 .inflorescence =
                     together({spike({.radius = 10,
                                      .from = 0.78,
                                      .grain = 2.8,
                                      .palette = palettes::leafy,
                                      .second = palettes::leaf}),
                               raceme({.flower =
                                           [](Plate& plate, Point at, double degrees, double scale, int) {
                                               spike({.radius = 6,
                                                      .from = 0.05,
                                                      .grain = 2.6,
                                                      .palette = palettes::leafy,
                                                      .second = palettes::leaf})(
                                                   plate, {at, polar(at, degrees, 14 * scale),
                                                           polar(at, degrees - 4, 30 * scale)});
                                           },
                                       .nodes = 3,
                                       .from = 0.42,
                                       .to = 0.82,
                                       .angle = 38,
                                       .pedicel = 3,
                                       .smallest = 0.7})})});
    }};
