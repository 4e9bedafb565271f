// Sweet violet, Viola odorata: cordate crenate leaves from the ground, spurred zygomorphic flowers, runners.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Herb.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_158_violette", [](Plate& p) {
        herb(p, {.height = 150,
                 .stems = {0, -52, 54},
                 .stemRadius = 1.6,
                 .tipRadius = 1.1,
                 .arrangement = Arrangement::none,
                 .basal = 6,
                 .basalLength = 118,
                 .basalWidth = 27,
                 .basalLeaf = LeafKind{.shape = shapes::cordate, .margin = crenate(11, 0.1), .petiole = 0.45},
                 .root = RootKind::fibrous,
                 .inflorescence = solitary(flowers({.length = 26,
                                                    .width = 12,
                                                    .baseAngle = 62,
                                                    .tipAngle = 92,
                                                    .palette = palettes::violet,
                                                    .cup = 2,
                                                    .tilt = 66,
                                                    .roll = 0,
                                                    .lengthOf =
                                                        [](int k) {
                                                            const double l[] = {1.12, 0.95, 0.9, 0.9, 0.95};
                                                            return l[k];
                                                        },
                                                    .spur = 14,
                                                    .eye = 2.4,
                                                    .eyePalette = palettes::orange}))});
    }};
