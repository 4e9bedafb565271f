// Buckthorn, Rhamnus cathartica: leaves with veins that bow to the tip, twigs that end in a thorn, clusters
// of black berries.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Branch.h"
#include "plates/engraver/botany/CompoundLeaf.h"

#include <cmath>

using namespace tambrelle::engraver;

static const Subject subject{
    "day_348_nerprun", [](Plate& p) {
        const LeafKind bowed{.shape = {0.3, 0.75, 1, 0.95, 0.6, 0},
                             .margin = crenate(16, 0.06),
                             .veins = 3,
                             .slant = 0.62,
                             .petiole = 0.16};
        const Path cane =
            twig(p, {{66, 96}, {146, 76}, {236, 84}, {308, 66}}, {5.4, 4.2, 2.8}, palettes::darkwood);
        thorn(p, {304, 67}, -12, 34, palettes::darkwood);
        const auto cluster = [&](Point at, int count) {
            for (int k = 0; k < count; ++k) {
                const double f = (k - (count - 1) / 2.0);
                const Point c = at + Point{f * 19, 48 + 16.0 * ((k * 2) % 3) + 3 * std::fabs(f)};
                stem(p, {at, lerp(at, c, 0.5) + Point{f * 3, 0}, c}, {1.2, 1.1});
                ball(p, c, 10.6, {.palette = palettes::berry, .direction = -80, .highlight = 0.2});
            }
        };
        for (const double q : {0.14, 0.42, 0.72}) {
            const Point at = along(cane, q);
            growLeaf(p, at, -128, 82, 24, bowed);
            growLeaf(p, at, -58, 82, 24, bowed);
        }
        const Path low =
            twig(p, {along(cane, 0.5), {232, 150}, {246, 236}}, {3, 2.4, 1.6}, palettes::darkwood);
        thorn(p, {245, 230}, 82, 30, palettes::darkwood);
        growLeaf(p, along(low, 0.6), 20, 88, 26, bowed, 12);
        growLeaf(p, along(low, 0.62), 152, 80, 24, bowed, -12);
        growLeaf(p, along(cane, 0.1), 104, 92, 27, bowed);
        cluster(along(cane, 0.3), 5);
        cluster(along(cane, 0.8), 5);
        cluster(along(low, 0.78) + Point{0, 2}, 4);
    }};
