// Rocket, Eruca sativa: lyrate lobed leaves, four cream petals with violet veins.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_204_roquette", [](Plate& p) {
        const LeafKind lyrate{
            .shape = {0.2, 0.4, 0.6, 0.85, 1, 0.8, 0}, .margin = lobed(4, 0.72), .veins = 5, .petiole = 0.14};
        herb(p, {.height = 236,
                 .stems = {-64, 66, 0},
                 .stemRadius = 2.8,
                 .leaf = lyrate,
                 .leaves = 4,
                 .leavesFrom = 0.14,
                 .leavesTo = 0.6,
                 .leafLength = 96,
                 .topLeafLength = 50,
                 .leafWidth = 22,
                 .topLeafWidth = 11,
                 .basal = 4,
                 .basalLength = 124,
                 .basalWidth = 25,
                 .basalSpread = 84,
                 .root = RootKind::taproot,
                 .inflorescence =
                     raceme({.flower = flowers({.petals = 4,
                                                .length = 24,
                                                .width = 10,
                                                .baseAngle = 66,
                                                .tipAngle = 92,
                                                .palette = palettes::cream,
                                                .cup = 2.6,
                                                .tilt = 76,
                                                .roll = 45,
                                                .marking =
                                                    [](double u, double v) {
                                                        return 0.75 * maths::exp(-v * v * 60) *
                                                                   maths::smooth(0.05, 0.3, u) * (1.1 - u) +
                                                               0.5 *
                                                                   maths::exp(-(std::fabs(v) - 0.45) *
                                                                              (std::fabs(v) - 0.45) * 120) *
                                                                   maths::smooth(0.2, 0.4, u) * (1 - u);
                                                    },
                                                .tube = 9,
                                                .eye = 2,
                                                .washLift = 0}),
                             .nodes = 3,
                             .from = 0.7,
                             .angle = 78,
                             .pedicel = 20,
                             .smallest = 0.6})});
    }};
