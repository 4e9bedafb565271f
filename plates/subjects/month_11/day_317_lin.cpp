// Flax, Linum usitatissimum: thread-thin stems with narrow alternate leaves, sky-blue five-petalled flowers,
// round capsules.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_317_lin", [](Plate& p) {
        const FlowerAt blossom =
            flowers({.length = 28,
                     .width = 15,
                     .baseAngle = 56,
                     .tipAngle = 80,
                     .shape = {0.25, 0.55, 0.9, 1, 0.85, 0.3},
                     .palette = palettes::skyblue,
                     .tilt = 54,
                     .marking =
                         [](double u, double v) {
                             return 0.16 * maths::exp(-v * v * 40) + 0.1 * maths::cos(v * 24) * (1 - u);
                         },
                     .eye = 3,
                     .stamens = 5,
                     .stamenLength = 0.3,
                     .antherPalette = palettes::blue,
                     .sepals = 5});
        const FlowerAt fruit = [](Plate& plate, Point at, double degrees, double scale, int) {
            ball(plate, polar(at, degrees, 9 * scale), 9.5 * scale,
                 {.palette = palettes::straw, .direction = degrees, .squash = 1.08});
            for (const double a : {-46.0, 46.0, 0.0})
                leaflet(plate, at, polar(at, degrees + a, 13 * scale), {.width = 2.8 * scale});
        };
        herb(p, {.foot = {200, 346},
                 .height = 250,
                 .stems = {-92, 92, -40, 44, 0},
                 .stemRadius = 1.7,
                 .tipRadius = 1.2,
                 .leaf = {.shape = shapes::linear,
                          .parallel = true,
                          .petiole = 0,
                          .palette = palettes::bluegreen},
                 .leaves = 12,
                 .leavesFrom = 0.1,
                 .leavesTo = 0.84,
                 .leafLength = 34,
                 .topLeafLength = 20,
                 .leafWidth = 2.2,
                 .topLeafWidth = 1.6,
                 .leafAngle = 34,
                 .root = RootKind::taproot,
                 .inflorescence = together({raceme({.flower = fruit,
                                                    .nodes = 2,
                                                    .from = 0.7,
                                                    .to = 0.86,
                                                    .perNode = 1,
                                                    .angle = 44,
                                                    .pedicel = 22,
                                                    .smallest = 0.8}),
                                            solitary(blossom)})});
    }};
