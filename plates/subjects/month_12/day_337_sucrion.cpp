// Winter barley, Hordeum vulgare: a short thick four-square ear that hangs over, fat grains all round it, the
// dense awns shorter than in two-row barley and spread to all sides; six grains at each joint (cut across,
// below). Sown in autumn: its green tuft has stood through the winter.

#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/AwnedEar.h"
#include "plates/engraver/botany/Cereal.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_337_sucrion", [](Plate& p) {
        const Palette ripe = mix(palettes::straw, palettes::ginger, 0.25);
        rootlets(p, {128, 340}, 13, 90, 110, 22);
        for (const double degrees : {-168.0, -14.0, -140.0, -36.0, -112.0})
            strapLeaf(p, {128, 338}, degrees, 74, 7, 40, palettes::leaf);
        stem(p, {{128, 342}, {122, 230}, {136, 130}, {166, 78}, {204, 74}}, {3.8, 3.2, 2.8}, palettes::straw);
        strapLeaf(p, {124, 236}, -150, 78, 7, 50, palettes::oldleaf);
        awnedEar(p, {{198, 74}, {240, 96}, {270, 148}, {286, 206}},
                 {.joints = 11,
                  .ranks = {-1, 1, -0.5, 0.5, 0},
                  .breadth = 15,
                  .grain = 38,
                  .plumpness = 0.29,
                  .lean = 40,
                  .awn = {70, 60},
                  .awnLean = {64, 30},
                  .scatter = 4,
                  .palette = ripe});
        earSection(p, {262, 308},
                   {.grains = {-90, -30, 30, 90, 150, 210}, .length = 38, .width = 10, .palette = ripe});
    }};
