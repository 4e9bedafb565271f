// Six-row barley, Hordeum vulgare: thick square ears with grains in six ranks, long awns that fan out.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Cereal.h"

using namespace tambrelle::engraver;

static const Subject subject{"day_334_escourgeon", [](Plate& p) {
                                 cereal(p, {.height = 216,
                                            .headLength = 104,
                                            .stems = {-80, 80, 0},
                                            .radius = 2.4,
                                            .leaves = 2,
                                            .leafWidth = 6,
                                            .head = [](Plate& plate, const Path& spine) {
                                                ear(plate, spine,
                                                    {.spikelets = 13,
                                                     .length = 21,
                                                     .width = 8.6,
                                                     .angle = 34,
                                                     .awn = 84,
                                                     .awnSpread = 30,
                                                     .rows = 3,
                                                     .palette = palettes::straw});
                                                ear(plate, spine,
                                                    {.spikelets = 13,
                                                     .length = 20,
                                                     .width = 7.6,
                                                     .angle = 17,
                                                     .rows = 3,
                                                     .palette = palettes::straw});
                                            }});
                             }};
