// Hawthorn, Crataegus monogyna, in flower: deeply lobed small leaves, sharp thorns, flat clusters of white
// five-petalled flowers with pink anthers.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Branch.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_214_aubepine", [](Plate& p) {
        const FlowerForm blossom{.length = 16,
                                 .width = 7.6,
                                 .baseAngle = 70,
                                 .tipAngle = 86,
                                 .shape = {0.4, 0.8, 1, 1, 0.8, 0},
                                 .palette = palettes::whiteflower,
                                 .tilt = 80,
                                 .stamens = 9,
                                 .stamenLength = 0.75,
                                 .antherPalette = palettes::magenta,
                                 .washLift = 0};
        const LeafKind cut{.build = LeafKind::Build::palmate,
                           .lobes = {{-66, 0.72}, {-26, 0.9}, {0, 1}, {26, 0.9}, {66, 0.72}},
                           .sinus = 0.7,
                           .teeth = 2,
                           .toothHeight = 1.6,
                           .bulge = 0.7};
        const Path spine =
            twig(p, {{62, 250}, {130, 220}, {206, 190}, {270, 144}, {330, 92}}, {5.6, 4.4, 2.4});
        for (const double q : {0.14, 0.44, 0.7})
            thorn(p, along(spine, q), angleAlong(spine, q) + (q > 0.3 && q < 0.6 ? 62 : -66), 22);
        const auto cluster = [&](double q, double degrees, double reach) {
            const Point from = along(spine, q);
            const Point tip = polar(from, degrees, reach);
            stem(p, {from, lerp(from, tip, 0.5) + Point{2, 0}, tip}, {1.8, 1.3});
            for (int k = 6; k >= 0; --k) {
                const Point at = k == 0 ? polar(tip, degrees, 26)
                                        : polar(polar(tip, degrees, 24), degrees + 60.0 * k + 30, 31);
                stem(p, {tip, at}, {1.1, 0.9});
            }
            for (int k = 6; k >= 0; --k) {
                const Point at = k == 0 ? polar(tip, degrees, 26)
                                        : polar(polar(tip, degrees, 24), degrees + 60.0 * k + 30, 31);
                FlowerForm turned = blossom;
                turned.roll = k * 37.0;
                turned.eye = 2.6;
                turned.eyePalette = palettes::magenta;
                flower(p, at, degrees, turned);
            }
        };
        growLeaf(p, along(spine, 0.1), 84, 78, 24, cut, -12);
        growLeaf(p, along(spine, 0.34), 100, 84, 24, cut, -10);
        growLeaf(p, along(spine, 0.62), 70, 92, 24, cut, 12);
        growLeaf(p, along(spine, 0.84), 40, 84, 24, cut, 16);
        growLeaf(p, along(spine, 0.98), -40, 70, 24, cut);
        growLeaf(p, along(spine, 0.22), -140, 76, 24, cut, 10);
        growLeaf(p, along(spine, 0.88), -120, 60, 24, cut, 10);
        cluster(0.3, -112, 44);
        cluster(0.66, -112, 42);
    }};
