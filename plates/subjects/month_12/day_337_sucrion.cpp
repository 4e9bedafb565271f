// Winter barley, a two-row kind: short dense erect ears seen flat, two ranks of grains, awns spread like a
// fan.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Cereal.h"

using namespace tambrelle::engraver;

static const Subject subject{"day_337_sucrion", [](Plate& p) {
                                 cereal(p, {.height = 206,
                                            .headLength = 96,
                                            .stems = {-86, 86, 0},
                                            .radius = 2.2,
                                            .palette = palettes::leafy,
                                            .leafPalette = palettes::leaf,
                                            .leaves = 3,
                                            .leafLength = 100,
                                            .leafWidth = 7,
                                            .head = [](Plate& plate, const Path& spine) {
                                                ear(plate, spine,
                                                    {.spikelets = 17,
                                                     .length = 22,
                                                     .width = 7.4,
                                                     .angle = 30,
                                                     .awn = 78,
                                                     .awnSpread = 34,
                                                     .rows = 2,
                                                     .palette = mix(palettes::straw, palettes::leafy, 0.35)});
                                            }});
                             }};
