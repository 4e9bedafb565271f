// Mezereum, Daphne mezereum: leafless upright twigs closely set with rosy four-lobed flowers, only a tuft of
// young leaves at the tip.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_128_mezereon", [](Plate& p) {
        const FlowerForm star{.petals = 4,
                              .length = 14,
                              .width = 7,
                              .baseAngle = 64,
                              .tipAngle = 88,
                              .shape = shapes::ovate,
                              .palette = mix(palettes::rose, palettes::magenta, 0.45),
                              .tilt = 58,
                              .roll = 45,
                              .tube = 9,
                              .tubeRadius = 2.6,
                              .eye = 1.8,
                              .eyePalette = palettes::yellow};
        const auto shoot = [&](const Path& spine, double radius, int flowersOnIt) {
            const Path curve = twig(p, spine, {radius, radius * 0.72, radius * 0.5});
            for (int k = 0; k < 5; ++k)
                leaf(p,
                     {curve.back(), polar(curve.back(), -90 + (k - 2) * 26, 16),
                      polar(curve.back(), -90 + (k - 2) * 34, 34)},
                     {.width = 5, .shape = shapes::lance, .palette = palettes::leafy, .veins = 3});
            for (int k = 0; k < flowersOnIt; ++k) {
                const double q = 0.36 + 0.58 * k / (flowersOnIt - 1.0);
                const Point at = along(curve, q);
                const double way = angleAlong(curve, q);
                flower(p, polar(at, way - 90, radius * 0.4), way - 74, star, 1.02);
                flower(p, polar(at, way + 90, radius * 0.4), way + 74, star, 1.02);
                if (k % 2 == 0)
                    flower(p, at, -90, star, 0.9);
            }
        };
        twig(p, {{204, 350}, {198, 318}, {202, 286}}, {7, 6});
        shoot({{200, 312}, {168, 250}, {118, 176}, {98, 100}}, 4.4, 7);
        shoot({{202, 316}, {238, 254}, {284, 190}, {306, 116}}, 4.4, 7);
        shoot({{201, 322}, {206, 230}, {198, 150}, {204, 74}}, 5, 8);
    }};
