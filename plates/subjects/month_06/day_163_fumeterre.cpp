// Fumitory, Fumaria officinalis: finely cut bluish leaves, racemes of pink spurred tubes with dark tips.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_163_fumeterre", [](Plate& p) {
        const FlowerAt tubeFlower = [](Plate& plate, Point at, double, double scale, int side) {
            const double way = side >= 0 ? -24 : -156;
            const Point d = direction(way);
            tube(plate, {at - d * (7 * scale), at + d * (8 * scale), at + d * (19 * scale)},
                 {6.4 * scale, 5.6 * scale, 4.2 * scale},
                 {.palette = mix(palettes::pink, palettes::rose, 0.6), .lines = Lines::along});
            ball(plate, at + d * (21 * scale), 5 * scale,
                 {.palette = palettes::crimson, .direction = way, .tone = 0.3});
        };
        herb(p, {.height = 236,
                 .stems = {-82, 82, 0},
                 .stemRadius = 2.8,
                 .leaf = {.build = LeafKind::Build::frond,
                          .petiole = 0.2,
                          .palette = palettes::bluegreen,
                          .leaflets = 4,
                          .subdivided = 3},
                 .leaves = 4,
                 .leavesFrom = 0.1,
                 .leavesTo = 0.6,
                 .leafLength = 100,
                 .topLeafLength = 66,
                 .leafWidth = 24,
                 .topLeafWidth = 16,
                 .leafAngle = 58,
                 .root = RootKind::taproot,
                 .inflorescence = raceme({.flower = tubeFlower,
                                          .nodes = 9,
                                          .from = 0.56,
                                          .perNode = 2,
                                          .angle = 70,
                                          .pedicel = 7,
                                          .smallest = 0.55})});
    }};
