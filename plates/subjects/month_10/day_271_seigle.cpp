// Rye, Secale cereale: on a long culm a very long slender ear, grey-blue and bristling with many short awns;
// the keels of its husks are combed with bristles (a spikelet enlarged, below).

#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/AwnedEar.h"
#include "plates/engraver/botany/Cereal.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_271_seigle", [](Plate& p) {
        const Palette hoary{0xDCE3D4, 0x95A8A2, 0x4E6562};
        const auto ryeEar = [&](const Path& culm, const Path& spine, double size) {
            stem(p, culm, {2.8, 2.4, 1.8}, hoary);
            awnedEar(p, spine,
                     {.joints = 26,
                      .breadth = 1,
                      .grain = 25 * size,
                      .plumpness = 0.21,
                      .lean = 25,
                      .awn = {26 * size, 36 * size},
                      .awnLean = {28, 18},
                      .scatter = 4,
                      .awnWidth = 0.9,
                      .palette = hoary});
        };
        strapLeaf(p, {118, 300}, -150, 80, 6, 56, palettes::greygreen);
        ryeEar({{126, 356}, {112, 280}, {98, 226}}, {{98, 228}, {84, 150}, {74, 56}}, 0.9);
        ryeEar({{136, 356}, {146, 280}, {160, 236}}, {{160, 238}, {196, 132}, {268, 76}, {330, 112}}, 1.1);
        // A spikelet enlarged: two flowers between narrow husks, each keel a comb that ends in an awn.
        const Point base{262, 342};
        stem(p, {base + Point{0, 14}, base}, 2.6, hoary);
        for (const double side : {-1.0, 1.0}) {
            const Path keel = spline({base + Point{side * 4, 0}, base + Point{side * 25, -38},
                                      base + Point{side * 27, -86}, base + Point{side * 36, -150}});
            p.stroke(keel, {.width = 1.7, .swell = 0, .fade = 0.5});
            for (double q = 0.12; q < 0.52; q += 0.026)
                p.stroke({along(keel, q), polar(along(keel, q), angleAlong(keel, q) + side * 44, 9)},
                         {.width = 0.9, .swell = 0, .fade = 0.6, .wobble = 0});
            leaf(p, {base, base + Point{side * 18, -40}, base + Point{side * 26, -86}},
                 {.width = 13,
                  .shape = {0.5, 0.92, 1, 0.8, 0.4, 0},
                  .palette = hoary,
                  .veins = 0,
                  .parallel = true,
                  .contour = 0.9});
        }
    }};
