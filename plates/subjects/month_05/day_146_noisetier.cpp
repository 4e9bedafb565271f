// Hazel, Corylus avellana: long yellow catkins hanging from the twig, a round doubly toothed leaf, tiny buds
// with red styles.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Branch.h"
#include "plates/engraver/botany/CompoundLeaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_146_noisetier", [](Plate& p) {
        const Path curve = twig(p, {{60, 92}, {140, 70}, {230, 80}, {340, 56}}, {5.6, 4.2, 2.2});
        const LeafKind round{.shape = {0.75, 0.95, 1, 0.98, 0.85, 0.4, 0},
                             .margin = serrate(14, 0.13),
                             .veins = 7,
                             .petiole = 0.12};
        growLeaf(p, along(curve, 0.1), 100, 128, 42, round, -8);
        growLeaf(p, along(curve, 0.9), 72, 132, 44, round, 10);
        growLeaf(p, along(curve, 0.66), -56, 72, 24, round, 10);
        for (const double q : {0.2, 0.46, 0.8}) {
            const Point at = along(curve, q);
            bud(p, at, angleAlong(curve, q) - 60, 17, palettes::oldleaf);
            for (int k = 0; k < 4; ++k)
                p.stroke({polar(at, angleAlong(curve, q) - 60, 15),
                          polar(at, angleAlong(curve, q) - 84 + 16 * k, 25)},
                         {.width = 1.5, .swell = 0, .colour = Colour(0xB02C50)});
        }
        const auto tassel = [&](double q, double x, double length) {
            const Point at = along(curve, q);
            catkin(p,
                   {at, at + Point{x * 0.6, length * 0.3}, at + Point{x, length * 0.66},
                    at + Point{x * 0.8, length}},
                   8.6, palettes::oldleaf);
        };
        tassel(0.35, -14, 168);
        tassel(0.36, 12, 192);
        tassel(0.52, -10, 150);
        tassel(0.54, 14, 200);
        tassel(0.7, -6, 160);
        tassel(0.72, 16, 128);
    }};
