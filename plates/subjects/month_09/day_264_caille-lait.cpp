// Lady's bedstraw, Galium verum: whorls of needle leaves, a froth of tiny golden four-petalled flowers.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_264_caille-lait", [](Plate& p) {
        herb(p, {.height = 230,
                 .stems = {-84, 84, 0},
                 .stemRadius = 2,
                 .leaf = {.shape = shapes::linear, .parallel = true, .petiole = 0, .palette = palettes::leaf},
                 .arrangement = Arrangement::whorled,
                 .leaves = 7,
                 .leavesFrom = 0.08,
                 .leavesTo = 0.62,
                 .leafLength = 54,
                 .topLeafLength = 26,
                 .leafWidth = 2.2,
                 .topLeafWidth = 1.6,
                 .leafAngle = 66,
                 .root = RootKind::rhizome,
                 .rootPalette = palettes::redstem,
                 .inflorescence = panicle({.flower = florets(5.6, palettes::yellow, 4),
                                           .from = 0.55,
                                           .branches = 7,
                                           .perBranch = 6,
                                           .width = 46,
                                           .angle = 46})});
    }};
