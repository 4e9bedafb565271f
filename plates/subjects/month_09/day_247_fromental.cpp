// Tall oat-grass, Arrhenatherum elatius: an open panicle of shining spikelets, each with one long bent awn.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Cereal.h"

using namespace tambrelle::engraver;

static const Subject subject{"day_247_fromental", [](Plate& p) {
                                 cereal(p, {.height = 282,
                                            .headLength = 176,
                                            .stems = {-96, 94, 0},
                                            .nod = 10,
                                            .radius = 1.6,
                                            .palette = palettes::stem,
                                            .leafPalette = palettes::leaf,
                                            .leaves = 3,
                                            .head = [](Plate& plate, const Path& spine) {
                                                grassPanicle(
                                                    plate, spine, 0.08,
                                                    {.whorls = 7,
                                                     .width = 40,
                                                     .taper = {0.8, 1, 0.7, 0.3},
                                                     .perBranch = 2,
                                                     .spikelet = 14,
                                                     .spikeletWidth = 2.6,
                                                     .awn = 16,
                                                     .hang = 0.3,
                                                     .angle = 48,
                                                     .palette = mix(palettes::straw, palettes::lilac, 0.25)});
                                            }});
                             }};
