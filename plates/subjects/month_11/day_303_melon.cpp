// Melon, Cucumis melo: a ribbed globe under a corky net; a slice shows orange flesh and the hollow of seeds.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Gourd.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_303_melon", [](Plate& p) {
        ground(p, 70, 340, 276, 5);
        leaf(p, {{190, 120}, {226, 92}, {282, 104}},
             {.width = 34, .shape = shapes::cordate, .margin = wavy(5, 0.1), .veins = 5});
        const LatheSurface globe = lathe(p, {172, 284}, 156, {8, 46, 63, 73, 78, 80, 78, 73, 63, 46, 10},
                                         {.tilt = 0.3,
                                          .palette = mix(palettes::straw, palettes::leafy, 0.4),
                                          .lines = Lines::along,
                                          .ribs = 10,
                                          .ribDepth = 0.06});
        for (int k = 0; k < 420; ++k) {
            const double u = p.random.uniform(0.05, 0.97), angle = p.random.uniform(0, 360);
            if (globe.facing(u, angle) < 0.12)
                continue;
            const double du = p.random.around(0.05), da = p.random.around(9);
            p.stroke({globe.at(u, angle), globe.at(maths::clamp01(u + du), angle + da)},
                     {.width = 0.9, .colour = Colour(0x8A7A4A)});
        }
        stem(p, {{172, 140}, {176, 124}, {192, 116}}, {6, 4.6, 4.4});
        wedge(p, {298, 240},
              {.radius = 58,
               .rind = mix(palettes::straw, palettes::leafy, 0.4),
               .flesh = mix(palettes::orange, palettes::cream, 0.25),
               .rindWidth = 0.1,
               .seeds = 11,
               .seed = palettes::cream,
               .hollow = true,
               .turn = -6});
    }};
