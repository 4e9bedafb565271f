#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"

using namespace tambrelle::engraver;

static const Subject subject{"day_010_cuve", [](Plate& p) {
                                 LatheForm tub;
                                 tub.palette = palettes::wood;
                                 tub.lines = Lines::along;
                                 lathe(p, {200, 300}, 150, {90, 82, 78}, tub);
                                 ground(p, 90, 320, 305);
                             }};
