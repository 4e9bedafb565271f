// Panic grass, Panicum: a wide airy panicle of hair-fine branches with one small round grain on each.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Cereal.h"

using namespace tambrelle::engraver;

static const Subject subject{"day_311_panic", [](Plate& p) {
                                 cereal(p, {.height = 256,
                                            .headLength = 170,
                                            .stems = {-60, 64},
                                            .radius = 1.8,
                                            .palette = palettes::leafy,
                                            .leafPalette = palettes::leaf,
                                            .leaves = 3,
                                            .leafLength = 100,
                                            .leafWidth = 5,
                                            .head = [](Plate& plate, const Path& spine) {
                                                grassPanicle(plate, spine, 0,
                                                             {.whorls = 9,
                                                              .width = 78,
                                                              .taper = {1, 0.95, 0.8, 0.5, 0.2},
                                                              .perBranch = 5,
                                                              .hang = 0,
                                                              .angle = 52,
                                                              .grain = 3,
                                                              .palette = palettes::straw});
                                            }});
                             }};
