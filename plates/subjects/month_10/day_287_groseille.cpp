// Red currant, Ribes rubrum: hanging strings of translucent red berries, lobed palmate leaves.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_287_groseille", [](Plate& p) {
        const LeafKind lobedLeaf{.build = LeafKind::Build::palmate,
                                 .petiole = 0.24,
                                 .lobes = {{-104, 0.6}, {-50, 0.86}, {0, 1}, {50, 0.86}, {104, 0.6}},
                                 .sinus = 0.72,
                                 .teeth = 5,
                                 .toothHeight = 2.4,
                                 .bulge = 1.2};
        const Path bough = twig(p, {{70, 84}, {150, 60}, {240, 70}, {330, 54}}, {5, 3.8, 2.2});
        growLeaf(p, along(bough, 0.1), 112, 122, 56, lobedLeaf);
        growLeaf(p, along(bough, 0.95), 62, 122, 56, lobedLeaf);
        growLeaf(p, along(bough, 0.5), -84, 66, 32, lobedLeaf);
        const auto string = [&](double q, double x, double length, int rows) {
            const Point from = along(bough, q);
            const Path curve =
                stem(p, {from, from + Point{x * 0.6, length * 0.4}, from + Point{x, length}}, {1.6, 1});
            for (int k = rows - 1; k >= 0; --k) {
                const double t = 0.2 + 0.8 * k / (rows - 1.0), r = 14.5 - 6 * t;
                for (const int side : {-1, 1}) {
                    if (k + 1 == rows && side < 0)
                        continue;
                    const Point at = along(curve, t) +
                                     Point{k + 1 == rows ? 0 : side * r * 0.95, r * 0.9 + (side > 0 ? 5 : 0)};
                    p.stroke({along(curve, t), at}, {.width = 1.1, .swell = 0});
                    ball(p, at, r, {.palette = palettes::scarlet, .direction = -90, .highlight = 0.3});
                    p.flat(ellipse(at + Point{0, r * 0.94}, 2.2, 2.6, 14), palettes::brown, 0.7);
                }
            }
        };
        string(0.3, -4, 172, 8);
        string(0.68, 6, 166, 8);
        string(0.48, 2, 214, 10);
    }};
