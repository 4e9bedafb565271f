// Lucerne, Medicago sativa: trifoliate leaves, short clusters of violet pea flowers, pods coiled like a
// snail beside them.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_241_luzerne", [](Plate& p) {
        herb(p, {.foot = {190, 340},
                 .height = 220,
                 .stems = {-70, 66, 0},
                 .stemRadius = 2.4,
                 .leaf = {.build = LeafKind::Build::trifoliate,
                          .shape = shapes::obovate,
                          .margin = serrate(4, 0.1),
                          .veins = 5},
                 .leaves = 6,
                 .leavesFrom = 0.16,
                 .leavesTo = 0.74,
                 .leafLength = 86,
                 .topLeafLength = 58,
                 .leafWidth = 9,
                 .topLeafWidth = 6.5,
                 .leafAngle = 56,
                 .root = RootKind::taproot,
                 .inflorescence = raceme({.flower = peas(23, palettes::violet, palettes::purple),
                                          .nodes = 5,
                                          .from = 0.76,
                                          .perNode = 2,
                                          .angle = 76,
                                          .pedicel = 5,
                                          .smallest = 0.6})});
        for (const Point middle : {Point{306, 300}, Point{334, 326}}) {
            Path coil;
            for (int k = 0; k <= 60; ++k)
                coil.push_back(polar(middle, 200 + k * 15.0, 17 - 0.24 * k));
            tube(p, coil, {1.6, 4.6, 4.2, 3, 1.4}, {.palette = palettes::oldleaf, .lines = Lines::across});
        }
    }};
