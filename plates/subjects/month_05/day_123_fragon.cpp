// Butcher's broom, Ruscus aculeatus: stiff leaf-like branchlets that end in a spine, a red berry sitting on
// the middle of the blade.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_123_fragon", [](Plate& p) {
        const auto spray = [&](const Path& spine, double radius, int blades, double size) {
            const Path curve = stem(p, spine, {radius, radius * 0.5}, palettes::darkleaf);
            for (int k = 0; k < blades; ++k) {
                const double q = 0.22 + 0.76 * k / (blades - 1.0);
                const double side = k + 1 == blades ? 0 : k % 2 == 0 ? -1 : 1;
                const double way = angleAlong(curve, q) + side * 56;
                const double length = size * (1.05 - 0.3 * q);
                const Point from = along(curve, q), tip = polar(from, way, length);
                p.stroke({polar(tip, way, -4), polar(tip, way, 8)}, {.width = 1.3, .swell = 0, .fade = 0.8});
                leaf(p, {from, lerp(from, tip, 0.5) + Point{0, -2}, tip},
                     {.width = length * 0.25,
                      .shape = shapes::ovate,
                      .palette = k % 3 == 0 ? palettes::leaf : palettes::darkleaf,
                      .veins = 0,
                      .parallel = true});
                if (k % 2 == 1 || k % 4 == 2)
                    ball(p, polar(from, way, length * 0.46) + Point{0, 3}, 9.4,
                         {.palette = palettes::scarlet, .direction = -80});
            }
        };
        spray({{198, 344}, {170, 260}, {120, 190}, {92, 128}}, 3.6, 7, 72);
        spray({{202, 344}, {232, 262}, {284, 196}, {310, 130}}, 3.6, 7, 72);
        spray({{200, 346}, {204, 250}, {196, 150}, {202, 96}}, 4.4, 9, 76);
    }};
