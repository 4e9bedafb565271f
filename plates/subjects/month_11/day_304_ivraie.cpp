// Darnel, Lolium: flat spikelets set edgewise, left and right in turn, along a zigzag axis.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Cereal.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_304_ivraie", [](Plate& p) {
        cereal(p, {.height = 250,
                   .headLength = 170,
                   .stems = {-92, 88, -4},
                   .palette = palettes::leafy,
                   .leafPalette = palettes::leaf,
                   .leaves = 2,
                   .leafWidth = 4,
                   .head = [](Plate& plate, const Path& spine) {
                       const Path curve = spline(spine);
                       const int n = 13;
                       Path axis;
                       for (int k = 0; k <= n; ++k) {
                           const double q = k / static_cast<double>(n);
                           axis.push_back(
                               polar(along(curve, q), angleAlong(curve, q) + 90, k % 2 == 0 ? 1.8 : -1.8));
                       }
                       tube(plate, axis, {1.6, 1}, {.palette = palettes::leafy});
                       for (int k = 0; k < n; ++k) {
                           const double size = 1 - 0.03 * k;
                           const double way =
                               angleAlong(curve, k / static_cast<double>(n)) + (k % 2 == 0 ? 24 : -24);
                           const Point at = axis[static_cast<std::size_t>(k)];
                           for (int f = 5; f >= 0; --f) {
                               const Point from = polar(at, way, f * 4.2 * size);
                               leaflet(plate, from, polar(from, way + (f % 2 == 0 ? 15 : -15), 14 * size),
                                       {.width = 3 * size,
                                        .palette = k % 3 == 0 ? palettes::leafy : palettes::straw,
                                        .tone = 0.12 + 0.03 * f});
                           }
                       }
                   }});
    }};
