// Goat willow, Salix caprea: fat silver-furred catkins on a bare twig, some already yellow with anthers; one
// oval wrinkled leaf.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Branch.h"
#include "plates/engraver/botany/CompoundLeaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_159_marceau", [](Plate& p) {
        const auto puss = [&](Point at, double degrees, double size, bool open) {
            bud(p, at, degrees, size * 0.34, palettes::brown);
            const Point base = polar(at, degrees, size * 0.1);
            lathe(p, base, size, {4, size * 0.22, size * 0.27, size * 0.25, size * 0.17, 2},
                  {.direction = degrees,
                   .palette = open ? palettes::yellow : palettes::silver,
                   .lines = Lines::along,
                   .contour = 0.5});
            for (int k = 0; k < 110; ++k) {
                const double u = p.random.uniform(0.08, 1), v = p.random.around(1.0);
                const Point from = polar(polar(base, degrees, size * u), degrees + 90,
                                         v * size * 0.24 * maths::pow(1.02 - u * u * 0.8, 0.5));
                const Point tip = polar(from, degrees + v * 50, open ? 9 : 6);
                p.stroke({from, tip}, {.width = 0.45, .colour = open ? Colour(0x8A6830) : Colour(0x77706A)});
                if (open)
                    p.dot(tip, 1.3, Colour(0xE8B52C));
            }
            bud(p, at, degrees + 24, size * 0.22, palettes::brown);
        };
        const auto shoot = [&](const Path& spine, int count, double size, int opened) {
            const Path curve = twig(p, spine, {4.6, 2.4}, mix(palettes::bark, palettes::redstem, 0.3));
            for (int k = 0; k < count; ++k) {
                const double q = 0.3 + 0.66 * k / (count - 1.0), s = k % 2 == 0 ? -1 : 1;
                puss(along(curve, q), angleAlong(curve, q) + s * 40, size, k < opened);
            }
        };
        const LeafKind blade{.shape = shapes::elliptic,
                             .margin = crenate(8, 0.06),
                             .veins = 8,
                             .pucker = 0.26,
                             .petiole = 0.12,
                             .palette = palettes::greygreen};
        growLeaf(p, {212, 306}, 0, 130, 33, blade, -16);
        shoot({{192, 346}, {150, 260}, {104, 180}, {92, 112}}, 5, 58, 2);
        shoot({{206, 346}, {220, 240}, {226, 150}, {252, 70}}, 7, 60, 0);
    }};
