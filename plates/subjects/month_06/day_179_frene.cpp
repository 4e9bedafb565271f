// Ash, Fraxinus excelsior: pinnate leaves, a hanging bunch of winged keys, black velvety buds.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Branch.h"
#include "plates/engraver/botany/CompoundLeaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_179_frene", [](Plate& p) {
        const Path curve = twig(p, {{84, 84}, {150, 70}, {210, 78}, {262, 64}}, {6, 5, 4.4});
        const LeafKind pinnate{.build = LeafKind::Build::pinnate,
                               .shape = shapes::lance,
                               .margin = serrate(8, 0.12),
                               .veins = 6,
                               .petiole = 0.16,
                               .leaflets = 4,
                               .leafletWidth = 0.17};
        growLeaf(p, along(curve, 0.1), 112, 208, 42, pinnate, -12);
        growLeaf(p, along(curve, 0.94), 58, 214, 42, pinnate, 14);
        const Point knot{196, 112};
        stem(p, {along(curve, 0.6), knot}, {2.4, 2});
        for (int k = 0; k < 11; ++k) {
            const double x = (k % 6 - 2.5) * 14 + (k > 5 ? 7 : 0), y = k > 5 ? 44.0 : 16.0;
            const Point at = knot + Point{x * 0.8, y};
            stem(p, {knot, lerp(knot, at, 0.6) + Point{x * 0.1, 0}, at}, {1.2, 1});
            samara(p, at, 90 - x * 0.4, 68, 9, palettes::oldleaf);
        }
        bud(p, curve.back(), -14, 24, palettes::black);
        bud(p, polar(curve.back(), 160, 8), -62, 15, palettes::black);
        bud(p, polar(curve.back(), 160, 8), 50, 15, palettes::black);
        bud(p, along(curve, 0.38), -70, 14, palettes::black);
    }};
