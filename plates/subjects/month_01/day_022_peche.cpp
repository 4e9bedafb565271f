// Peach, Prunus persica: a velvety globe with a seam and a red cheek, narrow toothed leaves; a half with its
// furrowed stone.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Branch.h"
#include "plates/engraver/botany/RootVegetable.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_022_peche", [](Plate& p) {
        branch(p, {.spine = {{102, 70}, {160, 60}, {230, 66}, {306, 54}},
                   .leaf = {.shape = shapes::lance, .margin = serrate(14, 0.1), .veins = 9, .petiole = 0.08},
                   .leaves = {{0.08, 128, 92, 13},
                              {0.3, -140, 66, 11},
                              {0.34, 116, 96, 13},
                              {0.66, -46, 74, 12},
                              {0.72, 60, 104, 14},
                              {0.99, 20, 70, 12},
                              {0.9, 74, 84, 12}},
                   .fruits = {{0.46, hangingPome({.length = 124,
                                                  .shape = {19, 50, 64, 71, 73, 70, 63, 49, 10},
                                                  .palette = palettes::orange,
                                                  .blush = palettes::red,
                                                  .stalk = 8,
                                                  .direction = 93,
                                                  .calyx = 0,
                                                  .suture = true,
                                                  .velvet = true})}}});
        ground(p, 244, 352, 290, 3);
        cutFace(p, {298, 244},
                {.radius = 46,
                 .squash = 0.94,
                 .rind = mix(palettes::orange, palettes::red, 0.5),
                 .flesh = mix(palettes::cream, palettes::orange, 0.35),
                 .rindWidth = 0.06,
                 .stone = 0.42,
                 .stonePalette = palettes::brown});
        for (int k = 0; k < 26; ++k) {
            const Point at = Point{298, 244} + Point{p.random.around(12), p.random.around(14)};
            p.stroke({at, at + Point{p.random.around(3), 4}, at + Point{p.random.around(4), 7}},
                     {.width = 1.0});
        }
    }};
