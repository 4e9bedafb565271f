// Goldenrod, Solidago: one leafy wand; side sprays arch out and over, with small golden heads along their
// upper sides only.

#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_357_verge_dor", [](Plate& p) {
        const Path main{{196, 354}, {204, 270}, {198, 170}, {202, 52}};
        const Path curve = spline(main);
        const LeafKind lance{.shape = shapes::lance, .margin = serrate(8, 0.14), .veins = 5, .petiole = 0.02};
        for (int k = 0; k < 9; ++k) {
            const double side = k % 2 == 0 ? 1 : -1;
            growLeaf(p, along(curve, 0.06 + 0.044 * k), -90 + side * (66 - 2 * k), 112 - 7.0 * k,
                     13 - 0.7 * k, lance, side * 16);
        }
        stem(p, main, {4, 3, 1.4});
        const auto head = [&](Point at, double degrees, double s) {
            const Point c = polar(at, degrees, 6 * s);
            leaflet(p, at, polar(at, degrees, 8 * s),
                    {.width = 3 * s, .palette = palettes::leafy, .shape = shapes::elliptic, .midrib = false});
            floret(p, c, 6.6 * s, palettes::yellow, 8, 0xC9881C);
        };
        for (int k = 0; k < 14; ++k) {
            const double t = k / 13.0, q = 0.98 - 0.46 * t, side = k % 2 == 0 ? 1 : -1;
            const Point from = along(curve, q);
            const double reach = 20 + 98 * t;
            const Path spray = spline({from, from + Point{side * reach * 0.36, -20 - reach * 0.16},
                                       from + Point{side * reach * 0.76, -16 - reach * 0.14},
                                       from + Point{side * reach, 6}});
            stem(p, spray, {1.5, 0.8});
            const int heads = 3 + static_cast<int>(reach / 13);
            for (int h = 0; h < heads; ++h) {
                const double u = 0.24 + 0.76 * h / (heads - 1.0);
                head(along(spray, u), angleAlong(spray, u) - side * 78 + p.random.around(10), 1.1 - 0.25 * u);
            }
        }
        head(curve.back(), -90, 1.1);
    }};
