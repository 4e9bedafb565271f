// Turnip, Brassica rapa: a white globe with a violet top and a thin tail; rough lyrate leaves.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/RootVegetable.h"

using namespace tambrelle::engraver;

static const Subject subject{"day_023_navet", [](Plate& p) {
                                 rootVegetable(p, {.crown = {200, 178},
                                                   .length = 96,
                                                   .shape = {14, 38, 51, 56, 55, 49, 38, 22, 6},
                                                   .tail = 52,
                                                   .palette = mix(palettes::purple, palettes::magenta, 0.4),
                                                   .lower = palettes::whiteflower,
                                                   .lowerFrom = 0.3,
                                                   .rough = 0.02,
                                                   .lenticels = 8,
                                                   .hairs = 6,
                                                   .leaf = {.shape = {0.2, 0.25, 0.35, 0.5, 0.8, 1, 0.8, 0},
                                                            .margin = lobed(5, 0.45),
                                                            .veins = 6,
                                                            .petiole = 0.18},
                                                   .leaves = 5,
                                                   .leafLength = 124,
                                                   .leafWidth = 25,
                                                   .leafSpread = 52});
                             }};
