// Alatern, Rhamnus alaternus: leathery alternate leaves with small teeth, berries in the axils that turn from
// red to black.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_157_alaterne", [](Plate& p) {
        const Path main = twig(p, {{196, 346}, {208, 270}, {194, 180}, {204, 84}}, {5.4, 4.4, 2.2});
        const LeafKind blade{.shape = shapes::ovate,
                             .margin = serrate(9, 0.09),
                             .veins = 5,
                             .petiole = 0.1,
                             .palette = palettes::darkleaf};
        for (int k = 0; k < 8; ++k) {
            const double q = 0.14 + 0.12 * k, s = k % 2 == 0 ? -1 : 1;
            growLeaf(p, along(main, q), angleAlong(main, q) + s * 60, 104 - 6.0 * k, 25 - 1.2 * k, blade,
                     s * 14);
        }
        growLeaf(p, main.back(), -84, 66, 16, blade);
        for (int k = 0; k < 7; ++k) {
            const double q = 0.19 + 0.12 * k, s = k % 2 == 0 ? -1 : 1;
            const Palette skins[] = {palettes::berry, palettes::scarlet, palettes::crimson};
            for (int i = 0; i < 4; ++i) {
                const Point tip =
                    along(main, q) + Point{s * (15 + 9.0 * (i % 2)), -8.0 + 11 * i - 5 * (i % 2)};
                stem(p, {along(main, q), tip}, {1.2, 1.1});
                ball(p, tip, 8, {.palette = skins[(k + i) % 3], .direction = -90});
            }
        }
    }};
