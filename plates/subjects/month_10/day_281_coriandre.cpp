// Coriander, Coriandrum sativum: fan-shaped lower leaves, threadlike upper ones, small white umbels; the
// round ribbed seeds.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_281_coriandre", [](Plate& p) {
        const LeafKind thread{.build = LeafKind::Build::frond,
                              .petiole = 0.2,
                              .leaflets = 3,
                              .leafletWidth = 0.08,
                              .subdivided = 2};
        const LeafKind fan{.build = LeafKind::Build::trifoliate,
                           .shape = shapes::obovate,
                           .margin = dentate(3, 0.4),
                           .veins = 4,
                           .petiole = 0.3};
        herb(p, {.foot = {176, 340},
                 .height = 236,
                 .stems = {-58, 62, 0},
                 .stemRadius = 2.6,
                 .leaf = thread,
                 .leaves = 3,
                 .leavesFrom = 0.24,
                 .leavesTo = 0.66,
                 .leafLength = 76,
                 .topLeafLength = 44,
                 .leafWidth = 22,
                 .topLeafWidth = 12,
                 .basal = 4,
                 .basalLength = 110,
                 .basalWidth = 24,
                 .basalSpread = 86,
                 .basalLeaf = fan,
                 .root = RootKind::taproot,
                 .inflorescence = umbel({.rays = 7,
                                         .length = 34,
                                         .spread = 120,
                                         .raylets = 8,
                                         .rayletLength = 11,
                                         .floretRadius = 3.4,
                                         .palette = mix(palettes::whiteflower, palettes::pink, 0.3)})});
        for (const auto& [x, y, r] :
             {std::tuple{312.0, 252.0, 26.0}, {334.0, 300.0, 24.0}, {288.0, 304.0, 25.0}}) {
            ball(p, {x, y}, r, {.palette = palettes::tan, .direction = -90});
            for (const double bulge : {-0.86, -0.6, -0.3, 0.0, 0.3, 0.6, 0.86})
                p.stroke(spline({{x, y - r * 0.94}, {x + r * bulge, y}, {x, y + r * 0.94}}),
                         {.width = 1.1, .swell = 0.3});
            leaflet(p, {x, y - r + 2}, {x + 2, y - r - 9}, {.width = 2.4, .palette = palettes::brown});
        }
    }};
