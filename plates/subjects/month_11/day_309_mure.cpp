// Bramble, Rubus fruticosus: prickly arching cane, leaves of three to five toothed leaflets, berries of
// shining black drupelets, red ones unripe, pink flowers.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Branch.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_309_mure", [](Plate& p) {
        const LeafKind five{.build = LeafKind::Build::digitate,
                            .shape = shapes::ovate,
                            .margin = serrate(9, 0.18),
                            .veins = 6,
                            .petiole = 0.26,
                            .leaflets = 5,
                            .leafletWidth = 0.26};
        const Path cane = twig(p, {{66, 300}, {110, 190}, {180, 108}, {270, 78}, {338, 90}}, {5.5, 4.6, 2.4},
                               palettes::redstem);
        growLeaf(p, along(cane, 0.2), -170, 92, 20, five);
        growLeaf(p, along(cane, 0.5), -118, 92, 20, five);
        growLeaf(p, along(cane, 0.85), -50, 80, 18, five);
        growLeaf(p, along(cane, 0.98), 50, 96, 20, five);
        growLeaf(p, along(cane, 0.26), 60, 106, 22, five);
        for (int k = 0; k < 9; ++k)
            thorn(p, along(cane, 0.08 + k * 0.1),
                  angleAlong(cane, 0.08 + k * 0.1) + (k % 2 == 0 ? 100 : -100), 11, palettes::redstem);
        const Path side = stem(p, {{190, 104}, {216, 140}, {222, 178}}, {2.4, 1.8}, palettes::redstem);
        const auto fruit = [&](double q, Point at, double size, const Palette& palette) {
            stem(p, {along(side, q), lerp(along(side, q), at, 0.6) + Point{0, -6}, at}, {1.6, 1.4},
                 palettes::stem);
            for (const double a : {0.0, 180.0, 40.0, 140.0})
                leaflet(p, at, polar(at, a, size * 0.9), {.width = 4});
            drupelets(p, at, 92, size, size * 2, palette);
        };
        fruit(0.3, {164, 168}, 18, palettes::red);
        fruit(0.5, {286, 158}, 19, palettes::scarlet);
        fruit(0.85, {250, 216}, 24, palettes::berry);
        fruit(1, {194, 228}, 26, palettes::berry);
        flower(p, {290, 116}, -30,
               {.length = 22,
                .width = 11,
                .baseAngle = 76,
                .tipAngle = 92,
                .palette = palettes::pink,
                .tilt = 66,
                .eye = 5,
                .stamens = 16,
                .stamenLength = 0.5,
                .sepals = 5,
                .washLift = 0});
    }};
