// Skirret, Sium sisarum: a bundle of slim white fleshy roots from one crown, pinnate leaves with toothed
// lance leaflets, a white umbel.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"
#include "plates/engraver/botany/RootVegetable.h"

#include <cmath>

using namespace tambrelle::engraver;

static const Subject subject{
    "day_046_chervis", [](Plate& p) {
        const Palette pale = mix(palettes::cream, palettes::root, 0.3);
        for (const double d : {128.0, 52.0, 112.0, 68.0, 98.0, 82.0, 90.0})
            swollenRoot(p, {.crown = {200 - (d - 90) * 0.5, 190},
                            .length = 104 - std::fabs(d - 90) * 0.3,
                            .shape = {5, 8.5, 10, 9, 9.5, 7, 2.4},
                            .tail = 26,
                            .palette = pale,
                            .rough = 0.1,
                            .lenticels = 16,
                            .hairs = 4,
                            .direction = d});
        tube(p, {{200, 206}, {200, 190}, {200, 172}}, {17, 19, 10}, {.palette = pale, .rough = 0.12});
        herb(p, {.foot = {200, 182},
                 .height = 112,
                 .stems = {0},
                 .stemRadius = 3.6,
                 .leaf = {.build = LeafKind::Build::pinnate,
                          .shape = shapes::lance,
                          .margin = serrate(7, 0.16),
                          .veins = 4,
                          .petiole = 0.2,
                          .leaflets = 3,
                          .leafletWidth = 0.2},
                 .leaves = 2,
                 .leavesFrom = 0.3,
                 .leavesTo = 0.6,
                 .leafLength = 96,
                 .topLeafLength = 80,
                 .leafWidth = 27,
                 .topLeafWidth = 22,
                 .leafAngle = 66,
                 .basal = 2,
                 .basalLength = 124,
                 .basalWidth = 30,
                 .basalSpread = 72,
                 .inflorescence = umbel({.rays = 11,
                                         .length = 44,
                                         .spread = 130,
                                         .raylets = 9,
                                         .rayletLength = 9,
                                         .floretRadius = 2.4})});
    }};
