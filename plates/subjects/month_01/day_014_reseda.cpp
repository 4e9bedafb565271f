// Mignonette, Reseda odorata: three-lobed and spoon leaves, spires of greenish-ochre fringed florets with
// rusty stamens.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_014_reseda", [](Plate& p) {
        herb(p, {.height = 216,
                 .stems = {-84, 84, 0},
                 .stemRadius = 2.2,
                 .leaf = {.shape = shapes::obovate, .margin = lobed(1.5, 0.5), .veins = 4, .petiole = 0.16},
                 .leaves = 4,
                 .leavesFrom = 0.08,
                 .leavesTo = 0.5,
                 .leafLength = 86,
                 .topLeafLength = 56,
                 .leafWidth = 17,
                 .topLeafWidth = 11,
                 .leafAngle = 44,
                 .root = RootKind::taproot,
                 .inflorescence = spike({.radius = 11,
                                         .from = 0.5,
                                         .shape = {0.8, 1, 0.95, 0.85, 0.6, 0.15},
                                         .grain = 2.7,
                                         .density = 1.2,
                                         .palette = palettes::leafy,
                                         .second = palettes::orange,
                                         .secondShare = 0.22})});
    }};
