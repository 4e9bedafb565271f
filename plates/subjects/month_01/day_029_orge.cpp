// Two-row barley, Hordeum distichum: nodding flat ears with two rows of grains and very long straight awns.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Cereal.h"

using namespace tambrelle::engraver;

static const Subject subject{"day_029_orge", [](Plate& p) {
                                 cereal(p, {.height = 230,
                                            .headLength = 124,
                                            .stems = {-84, 70, -6},
                                            .nod = 34,
                                            .leaves = 2,
                                            .head = [](Plate& plate, const Path& spine) {
                                                ear(plate, spine,
                                                    {.spikelets = 20,
                                                     .length = 21,
                                                     .width = 7,
                                                     .angle = 17,
                                                     .awn = 92,
                                                     .awnSpread = 13,
                                                     .rows = 2});
                                            }});
                             }};
