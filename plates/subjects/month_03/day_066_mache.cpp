// Corn salad, Valerianella locusta: small flat rosettes of spoon leaves on a tuft of roots, the midribs
// pale.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_066_mache", [](Plate& p) {
        const auto rosette = [&](Point at, double size, double roll) {
            for (int ring = 0; ring < 3; ++ring)
                for (int k = 0; k < 7; ++k) {
                    const int order = k % 2 == 0 ? k / 2 : -(k + 1) / 2;
                    const double a = -90 + order * 360.0 / 7 + ring * 26 + roll;
                    const Point d = direction(a);
                    const double reach = size * (1 - 0.27 * ring);
                    const Point tip = at + Point{d.x * reach, d.y * reach * 0.72 - ring * 5.0};
                    leaf(p, {at, lerp(at, tip, 0.5) + Point{0, -reach * 0.07}, tip},
                         {.width = reach * 0.2,
                          .shape = {0.3, 0.34, 0.5, 0.8, 1, 0.9, 0},
                          .palette = ring == 0   ? palettes::leaf
                                     : ring == 1 ? mix(palettes::leaf, palettes::leafy, 0.5)
                                                 : palettes::leafy,
                          .veins = 4,
                          .slant = 0.4,
                          .tone = ring == 0 ? 0.08 : -0.04,
                          .shade = 0.36});
                }
        };
        rootlets(p, {150, 190}, 16, 100, 60, 90);
        rootlets(p, {268, 232}, 14, 84, 60, 80);
        rosette({142, 170}, 92, 8);
        rosette({266, 228}, 80, -10);
    }};
