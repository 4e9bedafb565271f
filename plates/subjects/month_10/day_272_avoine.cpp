// Oat, Avena sativa: a loose spreading panicle, each big spikelet hanging from its own thread.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Cereal.h"

using namespace tambrelle::engraver;

static const Subject subject{"day_272_avoine", [](Plate& p) {
                                 cereal(p, {.height = 290,
                                            .headLength = 190,
                                            .stems = {-74, 66},
                                            .nod = 12,
                                            .leaves = 2,
                                            .head = [](Plate& plate, const Path& spine) {
                                                grassPanicle(plate, spine, 0.08,
                                                             {.whorls = 6,
                                                              .width = 62,
                                                              .perBranch = 2,
                                                              .spikelet = 27,
                                                              .spikeletWidth = 5.4,
                                                              .awn = 16});
                                            }});
                             }};
