// Tomato, Solanum lycopersicum: squat ribbed red fruits on a truss, star calyx, pinnate leaves with toothed
// leaflets.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_028_tomate", [](Plate& p) {
        stem(p, {{150, 40}, {176, 84}, {196, 130}}, {4.6, 3.6});
        const LeafKind feather{.build = LeafKind::Build::pinnate,
                               .margin = serrate(3, 0.32),
                               .veins = 4,
                               .petiole = 0.14,
                               .leaflets = 3,
                               .leafletWidth = 0.34};
        growLeaf(p, {162, 62}, 182, 112, 32, feather, -40);
        growLeaf(p, {174, 80}, -14, 132, 34, feather, 34);
        stem(p, {{192, 126}, {172, 146}, {150, 166}}, {2.4, 2.8});
        stem(p, {{194, 128}, {222, 140}, {258, 152}}, {2.4, 2.8});
        stem(p, {{195, 128}, {200, 168}, {204, 210}}, {2.4, 2.8});
        const auto fruit = [&](Point at, double radius, const Palette& palette) {
            lathe(p, at + Point{0, -radius * 0.2}, radius * 1.3,
                  {radius * 0.5, radius * 0.82, radius * 0.95, radius, radius * 0.97, radius * 0.86,
                   radius * 0.62, radius * 0.2},
                  {.direction = 90,
                   .tilt = -0.42,
                   .palette = palette,
                   .lines = Lines::along,
                   .ribs = 9,
                   .ribDepth = 0.07});
            const Point top = at + Point{0, -radius * 0.1};
            for (int k = 0; k < 5; ++k) {
                const double a = 18 + k * 72.0 + p.random.around(6);
                const Point d = direction(a);
                leaflet(p, top, top + Point{d.x * radius * 0.62, d.y * radius * 0.34}, {.width = 3.4});
            }
            stem(p, {top + Point{0, -9}, top}, {2.4, 3});
        };
        fruit({142, 176}, 44, palettes::scarlet);
        fruit({266, 166}, 43, palettes::scarlet);
        fruit({206, 222}, 50, palettes::scarlet);
    }};
