#include "plates/engraver/botany/ColumnTree.h"

#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Leaf.h"

namespace tambrelle::engraver {

void columnTree(Plate& plate, Point foot, const ColumnTreeForm& f) {
    tube(plate, {foot, foot + Point{1, -f.height * 0.5}, foot + Point{0, -f.height * 0.9}},
         {f.trunk, f.trunk * 0.8, f.trunk * 0.3}, {.palette = f.bark, .spacing = 1.8, .rough = 0.1});
    const double low = f.height * f.bole, crown = f.height - low - f.spray * 0.6;
    const int rows = static_cast<int>(crown / (f.spray * 0.34));
    plate.castShadows(false);
    // Lower sprays lie over the feet of those above.
    for (int row = rows; row >= 0; --row) {
        const double t = row / static_cast<double>(rows), width = f.crown(t);
        const int pairs = std::max(1, static_cast<int>(width / (f.spray * 0.26)));
        for (int k = 0; k < 2 * pairs; ++k) {
            // From the rim inwards, the middle last.
            const int step = k / 2;
            const double x = (k % 2 == 0 ? 1 : -1) * (pairs > 1 ? 1 - step / (pairs - 0.5) : 0.3);
            const Point base = foot + Point{x * (width - f.spray * 0.14) + plate.random.around(2),
                                            -low - crown * t + plate.random.around(f.spray * 0.16)};
            const double way = -90 + x * f.lean + plate.random.around(7);
            leaflet(plate, base, polar(base, way, f.spray * plate.random.uniform(0.8, 1.15)),
                    {.width = f.spray * 0.17,
                     .palette = f.palette,
                     .shape = {0.5, 0.9, 1, 0.7, 0.35, 0},
                     .tone = std::clamp(0.1 + 0.3 * x + plate.random.around(0.1), -0.1, 0.5),
                     .contour = 0.55,
                     .hatched = false,
                     .halo = 0.2});
        }
    }
    plate.castShadows(true);
}

} // namespace tambrelle::engraver
