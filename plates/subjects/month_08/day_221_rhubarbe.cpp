// Rhubarb, Rheum rhabarbarum: thick ribbed crimson stalks with very large crinkled cordate leaves.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_221_rhubarbe", [](Plate& p) {
        const Palette stalk = mix(palettes::red, palettes::crimson, 0.5);
        struct Leaf {
            Path stalk, blade;
            double width, radius;
            Palette palette;
        };
        rootlets(p, {200, 336}, 14, 90, 120, 14);
        for (const Leaf& l : {Leaf{{{190, 332}, {162, 280}, {132, 226}},
                                   {{134, 230}, {104, 180}, {66, 136}},
                                   46,
                                   7,
                                   palettes::leaf},
                              Leaf{{{210, 332}, {238, 280}, {266, 226}},
                                   {{264, 230}, {296, 180}, {334, 136}},
                                   46,
                                   7,
                                   palettes::leaf},
                              Leaf{{{200, 334}, {202, 260}, {198, 192}},
                                   {{198, 196}, {202, 130}, {196, 48}},
                                   62,
                                   8.5,
                                   palettes::leafy}}) {
            tube(p, l.stalk, {l.radius * 1.25, l.radius, l.radius * 0.8},
                 {.palette = stalk, .lines = Lines::along, .spacing = 1.7, .highlight = 0.16});
            leaf(p, l.blade,
                 {.width = l.width,
                  .shape = shapes::cordate,
                  .margin = wavy(5, 0.1),
                  .palette = l.palette,
                  .veins = 6,
                  .midrib = 2.4,
                  .pucker = 0.3});
            tube(p, {l.blade[0], l.blade[1], lerp(l.blade[1], l.blade[2], 0.5)}, {l.radius * 0.6, 1.6, 0.7},
                 {.palette = stalk, .lines = Lines::along, .contour = 0.5, .shade = 0.1, .halo = 0.2});
        }
        tube(p, {{176, 336}, {158, 312}, {150, 292}}, {5, 4, 3}, {.palette = stalk, .lines = Lines::along});
        leaf(p, {{151, 296}, {140, 276}, {120, 264}},
             {.width = 15, .shape = shapes::cordate, .margin = wavy(4, 0.12), .veins = 4, .pucker = 0.3});
        ground(p, 120, 280, 340, 4);
    }};
