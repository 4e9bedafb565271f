// Rye, Secale cereale: long slender nodding ears, grey-green to straw, with awns of middle length.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Cereal.h"

using namespace tambrelle::engraver;

static const Subject subject{"day_271_seigle", [](Plate& p) {
                                 cereal(p,
                                        {.height = 270,
                                         .headLength = 150,
                                         .stems = {-76, 74, 0},
                                         .nod = 44,
                                         .palette = mix(palettes::straw, palettes::greygreen, 0.45),
                                         .leafPalette = palettes::greygreen,
                                         .leaves = 2,
                                         .head = [](Plate& plate, const Path& spine) {
                                             ear(plate, spine,
                                                 {.spikelets = 24,
                                                  .length = 17,
                                                  .width = 5,
                                                  .angle = 15,
                                                  .awn = 36,
                                                  .awnSpread = 12,
                                                  .rows = 2,
                                                  .palette = mix(palettes::straw, palettes::greygreen, 0.5)});
                                         }});
                             }};
