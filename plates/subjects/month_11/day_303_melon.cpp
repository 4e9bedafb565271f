// Melon, Cucumis melo: a ribbed globe under a corky net; a slice shows orange flesh and the hollow of seeds.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Gourd.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_303_melon", [](Plate& p) {
        ground(p, 70, 340, 276, 5);
        leaf(p, {{190, 120}, {150, 96}, {96, 100}},
             {.width = 34, .shape = shapes::cordate, .margin = wavy(5, 0.1), .veins = 5});
        gourd(p, {174, 206},
              {.width = 92,
               .height = 76,
               .ribs = 8,
               .depth = 0.5,
               .palette = mix(palettes::straw, palettes::leafy, 0.4),
               .stalkLean = 0.8,
               .stalk = 30,
               .netted = true});
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
