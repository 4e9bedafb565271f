// Thymelaea: wiry twigs clothed in small overlapping fleshy leaves, little yellow flowers of four pointed
// lobes on a tube among them.

#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_142_thimele", [](Plate& p) {
        const auto blossom = [&](Point at, double degrees, double size) {
            flower(p, at, degrees,
                   {.petals = 4,
                    .length = 17,
                    .width = 6.4,
                    .baseAngle = 66,
                    .tipAngle = 88,
                    .shape = {0.7, 1, 0.95, 0.7, 0.3, 0},
                    .palette = palettes::yellow,
                    .tilt = 62,
                    .roll = 45,
                    .tube = 15,
                    .tubeRadius = 3.4,
                    .eye = 2.6,
                    .eyePalette = palettes::orange,
                    .washLift = 0.22},
                   size);
        };
        const auto shoot = [&](const Path& spine, int pairs, double size, const std::vector<double>& buds) {
            const Path curve = twig(p, spine, {4.4 * size, 2});
            for (int k = 0; k < pairs; ++k) {
                const double q = 0.06 + 0.94 * k / (pairs - 1), way = angleAlong(curve, q);
                const double reach = size * (27 - 9 * q);
                for (const double side : {-1.0, 1.0, 0.25}) {
                    const Point at = along(curve, q);
                    leaflet(p, at, polar(at, way + side * (46 - 16 * q) * (k % 2 == 0 ? 1 : 0.9), reach),
                            {.width = reach * 0.23,
                             .palette = palettes::bluegreen,
                             .shape = {0.6, 0.9, 1, 0.9, 0.6, 0},
                             .tone = side > 0.5 ? 0.28 : 0.06,
                             .contour = 0.6});
                }
                for (const double b : buds)
                    if (std::fabs(b - q) < 0.5 / pairs)
                        for (const double side : {-1.0, 1.0}) {
                            const Point at = polar(along(curve, q), way + side * 62, 17 * size);
                            blossom(at, way + side * 52, size * (1.05 - 0.2 * q));
                        }
            }
            blossom(polar(curve.back(), angleAlong(curve, 1), 14 * size), angleAlong(curve, 1), size);
        };
        twig(p, {{196, 352}, {204, 320}, {200, 280}}, {6, 5});
        shoot({{198, 320}, {164, 262}, {126, 206}, {112, 140}}, 13, 1.0, {0.4, 0.76});
        shoot({{203, 320}, {240, 262}, {276, 210}, {290, 146}}, 13, 1.0, {0.45, 0.8});
        shoot({{200, 310}, {206, 230}, {196, 150}, {202, 76}}, 15, 1.2, {0.3, 0.56, 0.82});
    }};
