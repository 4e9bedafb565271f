// Asparagus, Asparagus officinalis: thick spears with violet-tipped buds and triangular scales, tied in a
// bundle.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_183_asperge", [](Plate& p) {
        ground(p, 110, 300, 332, 4);
        const auto spear = [&](Point foot, Point top, double radius) {
            const Path spine{foot, lerp(foot, top, 0.4), lerp(foot, top, 0.75), top};
            const Path curve = tube(p, spine, {radius, radius, radius * 0.96, radius * 0.9},
                                    {.palette = mix(palettes::leafy, palettes::cream, 0.25),
                                     .lines = Lines::along,
                                     .cutEnd = false});
            const double way = angleOf(top - foot);
            int k = 0;
            for (const double q : {0.3, 0.44, 0.57, 0.68, 0.77}) {
                const Point at =
                    along(curve, q) + rightOf(direction(way)) * (radius * (k++ % 2 == 0 ? -0.42 : 0.4));
                leaflet(p, at, polar(at, way, radius * 1.9),
                        {.width = radius * 0.5,
                         .palette = mix(palettes::purple, palettes::cream, 0.45),
                         .shape = {1, 0.95, 0.75, 0.4, 0}});
            }
            scales(p, polar(top, way, -radius * 1.4), way,
                   {.radius = radius * 1.02,
                    .length = radius * 4.2,
                    .shape = {0.86, 1, 0.94, 0.72, 0.34},
                    .rows = 6,
                    .perRow = 6,
                    .palette = mix(palettes::purple, palettes::leafy, 0.4),
                    .spread = 6});
        };
        spear({134, 322}, {120, 110}, 12);
        spear({264, 322}, {284, 112}, 12);
        spear({152, 326}, {154, 84}, 13);
        spear({246, 326}, {248, 88}, 13);
        spear({176, 330}, {186, 56}, 14);
        spear({222, 330}, {222, 72}, 13.5);
        spear({200, 334}, {202, 108}, 14);
        for (const double y : {232.0, 242.0})
            tube(p, {{120, y - 6}, {160, y + 6}, {204, y + 9}, {246, y + 5}, {278, y - 6}}, 4.2,
                 {.palette = palettes::red, .lines = Lines::across, .spacing = 2.6});
    }};
