// Parsley, Petroselinum crispum: a tied bunch of long stalks with flat crinkled three-cut leaflets.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_172_persil", [](Plate& p) {
        const LeafKind curly{.build = LeafKind::Build::palmate,
                             .petiole = 0.1,
                             .palette = palettes::leaf,
                             .lobes = {{-70, 0.8}, {0, 1}, {70, 0.8}},
                             .sinus = 0.5,
                             .teeth = 3,
                             .toothHeight = 3,
                             .bulge = 1.2};
        const auto spray = [&](double degrees, double reach, bool dark) {
            const Point foot{200, 270};
            const Path curve = stem(p,
                                    {{200 - (degrees + 90) * 0.3, 356},
                                     foot + Point{(degrees + 90) * 0.12, 0},
                                     polar(foot, degrees, reach * 0.6),
                                     polar(foot, degrees + (degrees + 90) * 0.1, reach)},
                                    {3, 2.6, 1.6});
            LeafKind kind = curly;
            if (dark)
                kind.palette = palettes::darkleaf;
            for (const double q : {0.68, 0.84})
                for (const double s : {-1.0, 1.0}) {
                    const double way = angleAlong(curve, q) + s * 58;
                    const Point tip = polar(along(curve, q), way, 18);
                    stem(p, {along(curve, q), tip}, {1.5, 1.3});
                    growLeaf(p, tip, way - s * 10, 46 - 20 * (q - 0.68), 16, kind);
                }
            growLeaf(p, curve.back(), angleAlong(curve, 0.99), 54, 18, kind);
        };
        spray(-158, 124, true);
        spray(-22, 124, true);
        spray(-110, 176, true);
        spray(-70, 176, false);
        spray(-134, 146, false);
        spray(-46, 146, true);
        spray(-90, 128, false);
        tube(p, {{180, 282}, {200, 288}, {220, 282}}, {4, 4}, {.palette = palettes::straw});
    }};
