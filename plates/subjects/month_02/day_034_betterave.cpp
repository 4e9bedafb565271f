// Beetroot, Beta vulgaris: a dark red globe with a thin tail, ovate leaves on red stalks with red veins; a
// half cut across with its rings.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/RootVegetable.h"

using namespace tambrelle::engraver;

static const Subject subject{"day_034_betterave", [](Plate& p) {
                                 rootVegetable(
                                     p, {.crown = {176, 176},
                                         .length = 88,
                                         .shape = {16, 38, 49, 52, 49, 41, 28, 15, 5},
                                         .tail = 44,
                                         .palette = palettes::beet,
                                         .rough = 0.03,
                                         .lenticels = 10,
                                         .hairs = 6,
                                         .leaf = {.shape = shapes::ovate,
                                                  .margin = wavy(7, 0.1),
                                                  .veins = 6,
                                                  .pucker = 0.26,
                                                  .petiole = 0.34,
                                                  .palette = mix(palettes::leaf, palettes::redstem, 0.12),
                                                  .stalk = palettes::beet},
                                         .leaves = 5,
                                         .leafLength = 134,
                                         .leafWidth = 27,
                                         .leafSpread = 50,
                                         .stalk = palettes::beet,
                                         .stalkRadius = 3.2});
                                 ground(p, 240, 356, 304, 3);
                                 cutFace(p, {300, 258},
                                         {.radius = 45,
                                          .squash = 0.94,
                                          .rind = palettes::beet,
                                          .flesh = mix(palettes::beet, palettes::magenta, 0.3),
                                          .rindWidth = 0.06,
                                          .rings = 6});
                             }};
