// Privet, Ligustrum vulgare: opposite lance leaves on two shoots, one ending in a pyramid of small white
// four-lobed flowers, one in a pyramid of shining black berries.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Flower.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_154_troene", [](Plate& p) {
        const LeafKind blade{
            .shape = shapes::lance, .veins = 5, .petiole = 0.06, .palette = palettes::darkleaf};
        const auto shoot = [&](const Path& spine) {
            const Path curve = twig(p, spine, {4.6, 2.6});
            for (int k = 0; k < 4; ++k)
                for (const double s : {-1.0, 1.0}) {
                    const double q = 0.14 + 0.26 * k;
                    growLeaf(p, along(curve, q), angleAlong(curve, q) + s * 58, 88 - 7.0 * k, 15, blade,
                             s * 12);
                }
            return curve;
        };
        // Ranks of short branches, narrowing to the tip; from the back rank and the rim to the front.
        const auto pyramid = [&](const Path& curve, double height, double breadth, int ranks,
                                 const std::function<void(Point, double, double)>& draw) {
            const Point foot = curve.back();
            const double way = angleAlong(curve, 1);
            const Point up = direction(way), side = rightOf(up);
            stem(p, {foot, foot + up * (height * 0.5), foot + up * height}, {2.2, 1});
            for (int j = 0; j < ranks; ++j) {
                const double t = j / (ranks - 1.0), half = breadth * (1 - 0.82 * t);
                const int across = std::max(1, static_cast<int>(2 * half / 15 + 0.5));
                for (int k = 0; k < across; ++k) {
                    const double x = across > 1 ? 2.0 * k / (across - 1) - 1 : 0;
                    const Point from = foot + up * (height * t * 0.86),
                                at = from + side * (x * half) + up * (14 - 6 * std::fabs(x));
                    p.stroke({from, at}, {.width = 1, .swell = 0, .fade = 0});
                }
                for (int k = 0; k < across; ++k) {
                    const int order = k % 2 == 0 ? k / 2 : across - 1 - k / 2;
                    const double x = across > 1 ? 2.0 * order / (across - 1) - 1 : 0;
                    const Point from = foot + up * (height * t * 0.86),
                                at = from + side * (x * half) + up * (14 - 6 * std::fabs(x)) +
                                     Point{p.random.around(2), p.random.around(2)};
                    draw(at, way + x * 50, 1 - 0.2 * t);
                }
            }
        };
        const Path left = shoot({{190, 352}, {158, 290}, {126, 220}, {116, 168}});
        const Path right = shoot({{208, 352}, {240, 290}, {272, 222}, {284, 172}});
        pyramid(left, 116, 52, 8, [&](Point at, double degrees, double size) {
            flower(p, at, degrees,
                   {.petals = 4,
                    .length = 11.5,
                    .width = 5.4,
                    .baseAngle = 66,
                    .tipAngle = 90,
                    .shape = shapes::ovate,
                    .palette = palettes::whiteflower,
                    .tilt = 62,
                    .tube = 5,
                    .eye = 1.8,
                    .washLift = 0.02},
                   size);
        });
        pyramid(right, 100, 46, 7, [&](Point at, double degrees, double size) {
            ball(p, at, 9.4 * size, {.palette = palettes::berry, .direction = degrees + 180, .tone = 0.08});
        });
    }};
