// Pennycress, Thlaspi arvense: arrow-based leaves that clasp the stem, small white flowers above, below them
// round flat pods with a notched wing.

#include "plates/engraver/Relief.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_141_thlaspi", [](Plate& p) {
        const FlowerAt penny = [](Plate& plate, Point at, double degrees, double scale, int) {
            const double r = 13.5 * scale;
            const Point c = polar(at, degrees, r);
            const auto o = [&](double x, double y) {
                return c + direction(degrees) * (y * r) + direction(degrees + 90) * (x * r);
            };
            const Path disc =
                closedSpline({o(0, -1.05), o(0.7, -0.75), o(1, 0), o(0.8, 0.75), o(0.28, 1.08), o(0, 0.68),
                              o(-0.28, 1.08), o(-0.8, 0.75), o(-1, 0), o(-0.7, -0.75)});
            relief(plate, disc, {.palette = palettes::leafy, .bevel = 4, .heightScale = 0.6});
            relief(plate,
                   closedSpline(
                       {o(0, -0.7), o(0.42, -0.1), o(0.3, 0.46), o(0, 0.6), o(-0.3, 0.46), o(-0.42, -0.1)}),
                   {.palette = palettes::leaf, .bevel = 12, .contour = 0.6, .shade = 0});
            plate.stroke({o(0, -0.7), o(0, 0.6)}, {.width = 0.7});
        };
        herb(p, {.height = 236,
                 .stems = {-72, 72, 0},
                 .stemRadius = 3,
                 .leaf = {.shape = {0.9, 1, 0.95, 0.85, 0.6, 0},
                          .margin = dentate(4, 0.14),
                          .veins = 4,
                          .petiole = 0},
                 .leaves = 5,
                 .leavesFrom = 0.1,
                 .leavesTo = 0.46,
                 .leafLength = 80,
                 .topLeafLength = 44,
                 .leafWidth = 15,
                 .topLeafWidth = 10,
                 .leafAngle = 44,
                 .root = RootKind::taproot,
                 .inflorescence = together({raceme({.flower = penny,
                                                    .nodes = 5,
                                                    .from = 0.5,
                                                    .to = 0.88,
                                                    .angle = 66,
                                                    .pedicel = 14,
                                                    .smallest = 0.6}),
                                            corymb({.flower = flowers({.petals = 4,
                                                                       .length = 9,
                                                                       .width = 5.4,
                                                                       .baseAngle = 70,
                                                                       .tipAngle = 88,
                                                                       .palette = palettes::whiteflower,
                                                                       .tilt = 62,
                                                                       .stamens = 4,
                                                                       .stamenLength = 0.4,
                                                                       .washLift = 0}),
                                                    .count = 8,
                                                    .spread = 170,
                                                    .length = 18})})});
    }};
