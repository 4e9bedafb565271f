// Barberry, Berberis vulgaris: three-forked spines, tufts of spiny-edged spoon leaves, hanging racemes of
// oblong red berries.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Branch.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Leaf.h"

#include <cmath>

using namespace tambrelle::engraver;

static const Subject subject{
    "day_343_epine-vinette", [](Plate& p) {
        const LeafKind spoon{
            .shape = shapes::obovate, .margin = serrate(12, 0.12), .veins = 5, .petiole = 0.12};
        const Path cane =
            twig(p, {{64, 104}, {140, 84}, {230, 88}, {336, 66}}, {4.6, 3.6, 2.2}, palettes::straw);
        int node = 0;
        for (const double q : {0.1, 0.36, 0.62, 0.87}) {
            const Point at = along(cane, q);
            for (const double a : {-140.0, -40.0, -116.0, -64.0, -90.0})
                growLeaf(p, at, a, 62 - 0.1 * std::fabs(a + 90), 13, spoon);
            for (const double a : {48.0, 132.0, 90.0})
                thorn(p, at, a, a > 80 && a < 100 ? 22 : 26, palettes::straw);
            const Path axis =
                spline({at, at + Point{6, 50},
                        at + Point{node % 2 == 0 ? -4.0 : 10.0, node % 2 == 0 ? 140.0 : 116.0}});
            tube(p, axis, {1.4, 1}, {.palette = palettes::redstem});
            for (int k = 0; k < 9; ++k) {
                const double share = 0.28 + k * 0.085;
                const double side = k % 2 == 0 ? 1 : -1;
                const Point from = along(axis, share), c = from + Point{k == 8 ? 0 : side * 11, 16};
                p.stroke({from, c + Point{0, -9}}, {.width = 0.9, .swell = 0, .fade = 0});
                ball(p, c, 6.4,
                     {.palette = palettes::scarlet,
                      .direction = 90 - side * 16,
                      .squash = 1.7,
                      .highlight = 0.2});
            }
            ++node;
        }
    }};
