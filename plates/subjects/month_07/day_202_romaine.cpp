// Romaine lettuce, Lactuca sativa var. longifolia: a tall head of upright spoon-shaped leaves with broad pale
// ribs, tied round with bast.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_202_romaine", [](Plate& p) {
        ground(p, 120, 280, 340, 5);
        struct Blade {
            double foot, lean, curl, size, width;
            bool pale;
        };
        // From the back and the heart forward to the outer leaves.
        for (const Blade& b : {Blade{-8, -12, -6, 296, 46, true}, Blade{10, 12, 6, 292, 46, true},
                               Blade{0, 0, 2, 300, 50, true}, Blade{-22, -28, -10, 276, 46, false},
                               Blade{24, 29, 12, 274, 46, false}, Blade{-2, -1, -3, 268, 58, true},
                               Blade{-34, -44, -40, 238, 40, false}, Blade{36, 45, 42, 232, 40, false}}) {
            const Point foot{200 + b.foot * 0.7, 338 - std::fabs(b.foot) * 0.2};
            const double way = -90 + b.lean * 0.5;
            const Point tip = polar(foot, way, b.size) + Point{b.curl * 0.4, 0};
            const Path spine{foot, polar(foot, way, b.size * 0.36), polar(foot, way, b.size * 0.74), tip};
            const Palette green = b.pale ? mix(palettes::leafy, palettes::cream, 0.25) : palettes::leaf;
            leaf(p, spine,
                 {.width = b.width,
                  .shape = {0.42, 0.42, 0.5, 0.66, 0.86, 0.98, 1, 0.94, 0.66, 0},
                  .margin = wavy(9, 0.06),
                  .palette = green,
                  .veins = 6,
                  .slant = 0.34,
                  .midrib = 0,
                  .coverage = 0.28,
                  .pucker = 0.16});
            const Path rib = spline(spine);
            tube(p, {along(rib, 0.02), along(rib, 0.4), along(rib, 0.86)},
                 {b.width * 0.24, b.width * 0.13, 1},
                 {.palette = mix(palettes::cream, palettes::leafy, 0.25),
                  .lines = Lines::along,
                  .spacing = 3,
                  .contour = 0.55,
                  .shade = 0.1});
        }
        for (const double y : {232.0, 239.0})
            tube(p, {{144, y - 10}, {170, y + 1}, {200, y + 5}, {232, y + 1}, {258, y - 10}}, 3.4,
                 {.palette = palettes::straw, .spacing = 2.4});
    }};
