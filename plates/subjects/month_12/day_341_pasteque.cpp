// Watermelon, Citrullus lanatus: a large globe with dark ragged stripes; a wedge of red flesh with black
// seeds.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Gourd.h"

using namespace tambrelle::engraver;

static const Subject subject{"day_341_pasteque", [](Plate& p) {
                                 ground(p, 68, 344, 278, 5);
                                 gourd(p, {176, 198},
                                       {.width = 98,
                                        .height = 82,
                                        .ribs = 9,
                                        .depth = 0.12,
                                        .palette = palettes::leafy,
                                        .stalkLean = -0.8,
                                        .stalk = 22,
                                        .stripes = palettes::darkleaf});
                                 wedge(p, {290, 240},
                                       {.radius = 64,
                                        .rind = palettes::darkleaf,
                                        .flesh = palettes::scarlet,
                                        .rindWidth = 0.13,
                                        .seeds = 11,
                                        .seed = palettes::black,
                                        .turn = -6});
                             }};
