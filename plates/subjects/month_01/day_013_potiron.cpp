// Squash, Cucurbita maxima: flat, deeply ribbed, deep orange, a soft round stalk; a quarter cut out shows
// the hollow with its seeds.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Gourd.h"

using namespace tambrelle::engraver;

static const Subject subject{"day_013_potiron", [](Plate& p) {
                                 ground(p, 76, 330, 262, 5);
                                 gourd(p, {184, 204},
                                       {.width = 100,
                                        .height = 58,
                                        .ribs = 7,
                                        .palette = mix(palettes::orange, palettes::scarlet, 0.3),
                                        .stalkLean = 0.6,
                                        .stalk = 26,
                                        .stalkPalette = palettes::straw});
                                 wedge(p, {306, 240},
                                       {.radius = 46,
                                        .rind = mix(palettes::orange, palettes::scarlet, 0.3),
                                        .flesh = palettes::orange,
                                        .rindWidth = 0.08,
                                        .seeds = 9,
                                        .seed = palettes::cream,
                                        .hollow = true,
                                        .turn = -8});
                             }};
