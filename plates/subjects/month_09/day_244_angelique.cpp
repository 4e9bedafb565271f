// Angelica, Angelica archangelica: great round greenish umbels, a thick hollow ribbed stem, broad sheaths
// and twice-pinnate leaves.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Inflorescence.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_244_angelique", [](Plate& p) {
        const LeafKind broad{.build = LeafKind::Build::pinnate,
                             .shape = shapes::ovate,
                             .margin = serrate(7, 0.2),
                             .veins = 5,
                             .leaflets = 2,
                             .leafletWidth = 0.26};
        growLeaf(p, {196, 262}, -162, 132, 28, broad, -14);
        growLeaf(p, {204, 248}, -20, 132, 28, broad, 14);
        growLeaf(p, {198, 190}, -150, 84, 17, broad, -12);
        growLeaf(p, {202, 184}, -32, 84, 17, broad, 12);
        const Umbel green{.rays = 17,
                          .length = 46,
                          .spread = 230,
                          .flatness = 0.95,
                          .raylets = 10,
                          .rayletLength = 12,
                          .floretRadius = 2.5,
                          .palette = mix(palettes::leafy, palettes::cream, 0.4)};
        Umbel small = green;
        small.length = 30;
        small.rays = 13;
        small.rayletLength = 9;
        small.floretRadius = 2;
        for (const Path& side :
             {Path{{200, 208}, {166, 172}, {132, 134}}, Path{{200, 202}, {236, 168}, {268, 132}}}) {
            tube(p, side, {4, 3}, {.lines = Lines::along});
            umbel(small)(p, spline(side));
        }
        tube(p, {{198, 346}, {202, 260}, {200, 118}}, {10, 8, 4.4}, {.lines = Lines::along, .cutEnd = false});
        for (const auto& [at, side] : {std::pair{Point{198, 266}, -1.0},
                                       {Point{203, 252}, 1.0},
                                       {Point{199, 196}, -0.7},
                                       {Point{201, 190}, 0.7}})
            leaf(p, {at + Point{0, 26}, at + Point{side * 9, 8}, at + Point{side * 26, -10}},
                 {.width = 9,
                  .shape = {0.6, 1, 0.9, 0.5, 0.1},
                  .palette = palettes::leafy,
                  .veins = 0,
                  .parallel = true});
        umbel(green)(p, spline({{202, 260}, {201, 200}, {200, 118}}));
    }};
