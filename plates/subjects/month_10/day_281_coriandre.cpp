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
                              .leaflets = 5,
                              .leafletWidth = 0.06,
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
                 .leaves = 4,
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
            const LatheSurface seed = lathe(
                p, {x, y + r}, r * 2, {r * 0.2, r * 0.75, r, r * 0.98, r * 0.72, r * 0.16},
                {.tilt = 0.2, .palette = palettes::tan, .lines = Lines::along, .ribs = 14, .ribDepth = 0.06});
            leaflet(p, seed.at(1, 90) + Point{0, 2}, seed.at(1, 90) + Point{2, -8},
                    {.width = 2, .palette = palettes::brown});
        }
    }};
