// Vetchling, Lathyrus: winged stems, leaves of one pair of leaflets and a branched tendril, large purple-
// pink pea flowers.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_288_gesse", [](Plate& p) {
        const Path main{{196, 350}, {206, 270}, {192, 180}, {204, 60}};
        for (const double x : {-5.0, 5.0}) {
            Path wing;
            for (const Point& q : main)
                wing.push_back(q + Point{x * (0.2 + 0.8 * (q.y - 60) / 290), 0});
            tube(p, wing, {0.6, 3.4, 3.2, 3, 1}, {.palette = palettes::leafy, .lines = Lines::along});
        }
        const Path curve = stem(p, main, {1.6, 3, 2.6, 2.2, 1.4});
        const auto pinnate = [&](double q, double degrees, double size) {
            const Point at = along(curve, q), fork = polar(at, degrees, size * 0.3);
            const int side = degrees < -90 ? -1 : 1;
            tendril(p, fork, degrees - 4 * side,
                    {.length = size * 0.5, .turns = 2, .radius = 9, .width = 1.1, .hand = side});
            tendril(p, fork, degrees + 12 * side,
                    {.length = size * 0.4, .turns = 1.6, .radius = 7, .width = 1.1, .hand = -side});
            stem(p, {at, lerp(at, fork, 0.5), fork}, {2.2, 1.8});
            for (const double a : {-42.0, 42.0})
                growLeaf(p, fork, degrees + a, size, size * 0.16,
                         {.shape = shapes::elliptic,
                          .veins = 0,
                          .parallel = true,
                          .petiole = 0.02,
                          .palette = palettes::bluegreen});
        };
        pinnate(0.16, -162, 92);
        pinnate(0.34, -18, 92);
        pinnate(0.54, -164, 80);
        pinnate(0.78, -20, 60);
        const auto truss = [&](double q, const Point& tip, int side) {
            const Path stalk =
                stem(p, {along(curve, q), lerp(along(curve, q), tip, 0.5) + Point{0, 8}, tip}, {2.2, 1.6});
            for (const double t : {0.62, 1.0})
                peaFlower(p, polar(along(stalk, t), t < 0.9 ? -90 : (side > 0 ? 10 : 170), 9),
                          side > 0 ? -40 : -140, 62, mix(palettes::magenta, palettes::purple, 0.3), side,
                          palettes::magenta);
        };
        truss(0.56, {306, 128}, 1);
        truss(0.78, {100, 84}, -1);
        truss(0.3, {84, 230}, -1);
    }};
