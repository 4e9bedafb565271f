// Artichoke, Cynara scolymus: one great head of fleshy overlapping scales on a stout stalk, long cut grey
// leaves.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{"day_282_artichaut", [](Plate& p) {
                                 LeafForm blade{.width = 34,
                                                .shape = shapes::lance,
                                                .margin = lobed(6, 0.66),
                                                .palette = palettes::greygreen,
                                                .veins = 6};
                                 leaf(p, {{194, 344}, {140, 290}, {92, 250}, {58, 160}}, blade);
                                 leaf(p, {{206, 344}, {260, 290}, {308, 250}, {342, 160}}, blade);
                                 stem(p, {{200, 348}, {203, 290}, {200, 220}}, {11, 10, 10});
                                 blade.width = 22;
                                 leaf(p, {{198, 330}, {160, 312}, {120, 330}}, blade);
                                 leaf(p, {{202, 330}, {240, 312}, {280, 330}}, blade);
                                 scales(p, {200, 236}, -90,
                                        {.radius = 78,
                                         .length = 150,
                                         .shape = {0.3, 0.8, 1, 0.98, 0.78, 0.3},
                                         .rows = 6,
                                         .perRow = 7,
                                         .scaleWidth = 29,
                                         .scaleLength = 58,
                                         .scaleShape = {0.8, 1, 0.98, 0.74, 0.34, 0},
                                         .palette = mix(palettes::leafy, palettes::purple, 0.16),
                                         .spread = 12});
                             }};
