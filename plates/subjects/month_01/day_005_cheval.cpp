#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/zoology/Equid.h"
#include "plates/engraver/zoology/Locks.h"

using namespace tambrelle::engraver;

// The horse: arched neck, short ears, full mane and tail of long hair, one hoof to a foot.
static const Subject subject{
    "day_005_cheval", [](Plate& p) {
        const Quadruped horse = equid();
        Body body = horse.body();
        body.engrave(p, coat({palettes::bay}));
        body.fur(p, {.spacing = 3.2, .length = 7, .width = 0.5, .from = 0.5, .spread = 7});
        horse.finish(p);
        lock(p, {{221, 108}, {239, 121}, {243, 160}, {235, 192}, {237, 213}}, {2.5, 7.5, 10, 7, 0.6},
             {.strands = 80});
        lock(p, {{75, 37}, {90, 54}, {101, 76}, {112, 100}}, {1.5, 6, 8, 2});
        mane(p, {{76, 38}, {92, 56}, {104, 78}, {114, 98}}, {});
        lock(p, {{74, 36}, {66, 45}, {59, 58}}, {3, 3.2, 0.4}, {.strands = 14});
        ground(p, 62, 240, 233);
    }};
