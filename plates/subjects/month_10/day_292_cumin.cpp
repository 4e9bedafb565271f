// Cumin, Cuminum cyminum: threadlike leaves, few-rayed umbels of white to pink flowers with long bracts;
// ribbed spindle-shaped seeds.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_292_cumin", [](Plate& p) {
        herb(p, {.foot = {168, 340},
                 .height = 246,
                 .stems = {-66, 66, 0},
                 .stemRadius = 2.4,
                 .leaf = {.build = LeafKind::Build::frond,
                          .petiole = 0.2,
                          .palette = palettes::bluegreen,
                          .leaflets = 3,
                          .leafletWidth = 0.04,
                          .subdivided = 1},
                 .leaves = 6,
                 .leavesFrom = 0.1,
                 .leavesTo = 0.74,
                 .leafLength = 100,
                 .topLeafLength = 62,
                 .leafWidth = 34,
                 .topLeafWidth = 20,
                 .leafAngle = 44,
                 .root = RootKind::taproot,
                 .inflorescence = [](Plate& plate, const Path& curve) {
                     for (const double a : {-160.0, -125.0, -58.0, -20.0})
                         leaflet(plate, curve.back(), polar(curve.back(), a, 38),
                                 {.width = 1.4, .shape = shapes::linear});
                     umbel({.rays = 5,
                            .length = 30,
                            .spread = 110,
                            .raylets = 5,
                            .rayletLength = 9,
                            .floretRadius = 4,
                            .palette = mix(palettes::whiteflower, palettes::pink, 0.6)})(plate, curve);
                 }});
        for (const auto& [x, y, a] : {std::tuple{296.0, 320.0, -82.0}, {332.0, 322.0, -66.0}}) {
            lathe(p, {x, y}, 84, {2, 11, 16, 17, 15, 9, 3},
                  {.direction = a,
                   .tilt = 0.1,
                   .palette = palettes::tan,
                   .lines = Lines::along,
                   .spacing = 2.4,
                   .ribs = 9,
                   .ribDepth = 0.12});
            for (const double d : {-18.0, 18.0})
                p.stroke({polar({x, y}, a, 82), polar(polar({x, y}, a, 82), a + d, 12)},
                         {.width = 1.4, .swell = 0});
        }
    }};
