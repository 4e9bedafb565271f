// Wheat, Triticum aestivum, an awnless variety: stout square-set ears, golden.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Cereal.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_299_ble", [](Plate& p) {
        cereal(p, {.headLength = 150, .head = [](Plate& plate, const Path& spine) {
                       ear(plate, spine,
                           {.spikelets = 15, .length = 21, .width = 8.5, .angle = 21, .rows = 3});
                   }});
    }};
