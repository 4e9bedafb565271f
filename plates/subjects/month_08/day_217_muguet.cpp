// Lily of the valley, Convallaria majalis: two broad elliptic leaves, white bells hanging in a one-sided
// row, a creeping rhizome.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_217_muguet", [](Plate& p) {
        tube(p, {{128, 330}, {176, 322}, {226, 326}, {272, 320}}, {4, 5, 4.4},
             {.palette = palettes::root, .rough = 0.12});
        for (int k = 0; k < 7; ++k)
            rootlets(p, {140 + 20.0 * k, 326}, 2, 90, 50, 16);
        LeafForm blade{.width = 37, .shape = shapes::elliptic, .veins = 0, .parallel = true, .left = 0.8};
        leaf(p, {{196, 322}, {176, 258}, {130, 180}, {100, 96}}, blade);
        const Path scape{{206, 322}, {212, 240}, {224, 150}, {246, 84}, {276, 62}};
        stem(p, scape, {2.6, 2.2, 1.4});
        const Path curve = spline(scape);
        for (int k = 0; k < 7; ++k) {
            const double q = 0.985 - 0.083 * k, size = 0.6 + 0.085 * k;
            const Point at = along(curve, q);
            const Point hook = at + Point{9 + 17 * size, 1 - 4 * size}, end = hook + Point{5, 9 * size};
            stem(p, {at, lerp(at, hook, 0.6) + Point{0, -5 * size}, hook, end}, {0.9, 0.8});
            bell(p, end, 94,
                 {.length = 21,
                  .radius = 12.5,
                  .shape = {0.3, 0.85, 1, 0.92, 0.84, 1.04},
                  .lobes = 6,
                  .lobeDepth = 0.24,
                  .palette = palettes::whiteflower,
                  .tilt = 16},
                 size);
        }
        blade.palette = palettes::leafy;
        blade.left = 1;
        blade.right = 0.8;
        leaf(p, {{204, 324}, {186, 264}, {176, 190}, {196, 110}}, blade);
        tube(p, {{202, 326}, {200, 300}}, {7, 5}, {.palette = palettes::redstem, .lines = Lines::along});
    }};
