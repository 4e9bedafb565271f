// Speedwell, Veronica officinalis: opposite toothed leaves, racemes of small blue four-petalled flowers
// with two stamens.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_274_veronique", [](Plate& p) {
        const LeafKind blade{.shape = shapes::ovate, .margin = serrate(7, 0.18), .veins = 4, .petiole = 0.04};
        const FlowerForm blue{
            .petals = 4,
            .length = 15,
            .width = 9.6,
            .baseAngle = 72,
            .tipAngle = 88,
            .shape = shapes::orbicular,
            .palette = mix(palettes::blue, palettes::skyblue, 0.3),
            .tilt = 68,
            .roll = 45,
            .marking =
                [](double u, double v) {
                    return 0.5 * maths::exp(-v * v * 50) * (1 - u) +
                           0.3 * maths::exp(-(std::fabs(v) - 0.5) * (std::fabs(v) - 0.5) * 90) * (1 - u);
                },
            .eye = 3.2,
            .eyePalette = palettes::whiteflower,
            .stamens = 2,
            .stamenLength = 0.8,
            .antherPalette = palettes::whiteflower,
            .washLift = 0.16};
        herb(p, {.height = 236,
                 .stems = {-64, 66, 0},
                 .stemRadius = 2.6,
                 .hairs = 30,
                 .leaf = blade,
                 .arrangement = Arrangement::opposite,
                 .leaves = 4,
                 .leavesFrom = 0.1,
                 .leavesTo = 0.56,
                 .leafLength = 64,
                 .topLeafLength = 46,
                 .leafWidth = 18,
                 .topLeafWidth = 12,
                 .leafAngle = 62,
                 .root = RootKind::fibrous,
                 .inflorescence = raceme({.flower = flowers(blue),
                                          .nodes = 7,
                                          .from = 0.6,
                                          .angle = 72,
                                          .pedicel = 8,
                                          .smallest = 0.5})});
    }};
