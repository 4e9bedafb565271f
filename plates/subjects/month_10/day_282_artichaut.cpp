// Artichoke, Cynara scolymus: one great globe of fleshy overlapping scales on a stout stalk, long cut grey
// leaves.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_282_artichaut", [](Plate& p) {
        LeafForm blade{.width = 36,
                       .shape = shapes::lance,
                       .margin = lobed(6, 0.62),
                       .palette = palettes::greygreen,
                       .veins = 6};
        leaf(p, {{194, 350}, {136, 318}, {84, 270}, {52, 176}}, blade);
        leaf(p, {{206, 350}, {264, 318}, {316, 270}, {348, 176}}, blade);
        stem(p, {{200, 352}, {203, 300}, {200, 230}}, {13, 12, 13});
        const Point foot{200, 246};
        constexpr int rows = 8;
        // Outer scales lie over inner ones: from the tip down.
        for (int row = rows - 1; row >= 0; --row) {
            const double t = row / static_cast<double>(rows - 1);
            const double radius = 74 * std::sqrt(std::max(0.02, 1 - (t - 0.3) * (t - 0.3) / 0.62));
            const double y = foot.y - 8 - 124 * t;
            const int count = row == rows - 1 ? 3 : 5;
            for (const int k : {-4, 4, -3, 3, -2, 2, -1, 1, 0}) {
                const double place = k + (row % 2 == 0 ? 0 : 0.5);
                if (std::fabs(place) > count / 2.0 + 0.6)
                    continue;
                const double angle = place / (count / 2.0) * 68, x = maths::sin(maths::radians(angle));
                const double front = maths::cos(maths::radians(angle));
                const Point base{foot.x + x * radius * 0.82, y + 10 * front * (1 - t)};
                const double way = -90 + x * (46 - 34 * t), reach = (62 - 12 * t) * (0.8 + 0.2 * front);
                const Point tip = polar(base, way, reach);
                leaf(p, {base, polar(base, way + x * 20, reach * 0.55), tip},
                     {.width = (27 - 7 * t) * (0.5 + 0.5 * front),
                      .shape = {0.85, 1, 1, 0.86, 0.52, 0},
                      .palette = mix(mix(palettes::leaf, palettes::greygreen, 0.25), palettes::purple,
                                     0.1 + 0.22 * t),
                      .veins = 0,
                      .parallel = true,
                      .tone = 0.16 * x - 0.02,
                      .contour = 0.85,
                      .midrib = 0,
                      .coverage = 0.34});
                p.stroke({tip, polar(tip, way, 4)}, {.width = 1.4, .swell = 0, .fade = 0.6});
            }
        }
        blade.width = 22;
        leaf(p, {{198, 344}, {160, 330}, {116, 344}}, blade);
        leaf(p, {{202, 344}, {240, 330}, {284, 344}}, blade);
    }};
