#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/minerals/Block.h"
#include "plates/engraver/minerals/Shell.h"

using namespace tambrelle::engraver;

// Limestone: a cream-coloured block with a great ammonite in its face.
static const Subject subject{
    "day_108_pierre_a_chaux", [](Plate& p) {
        ground(p, 66, 336, 290, 8);
        const Palette lime{0xFBF3DC, 0xE3D3AC, 0x9F8B63};
        roughBlock(p, {.front = {262, 308}, .left = {-188, -16}, .right = {64, -40}, .height = 178},
                   {.beds = {{1, lime, 0}}, .seed = 22, .rough = 1.3, .grain = 20, .ragged = 2.2});
        ammonite(p, {166, 214}, 66, {0xF4E2BC, 0xC7A775, 0x7D5F3A});
        cockle(p, {98, 276}, 12, -80, lime);
        cockle(p, {238, 154}, 11, -120, lime);
    }};
