// Mignonette, Reseda odorata: three-lobed and spoon leaves, spires of greenish-ochre fringed florets with
// rusty stamens.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_014_reseda", [](Plate& p) {
        herb(p, {.height = 216,
                 .stems = {-74, 74, -30, 34, 0},
                 .stemRadius = 2.2,
                 .leaf = {.shape = shapes::obovate, .margin = lobed(1.5, 0.5), .veins = 4, .petiole = 0.16},
                 .leaves = 4,
                 .leavesFrom = 0.08,
                 .leavesTo = 0.5,
                 .leafLength = 62,
                 .topLeafLength = 40,
                 .leafWidth = 13,
                 .topLeafWidth = 8,
                 .leafAngle = 44,
                 .root = RootKind::taproot,
                 .inflorescence = spike({.radius = 13,
                                         .from = 0.5,
                                         .shape = {0.8, 1, 0.95, 0.85, 0.6, 0.15},
                                         .grain = 3.4,
                                         .density = 0.85,
                                         .palette = palettes::leafy,
                                         .second = palettes::orange,
                                         .secondShare = 0.34})});
    }};
