// Horseradish, Armoracia rusticana: a thick knotty pale root that forks, tall dock-like leaves with round
// teeth.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/RootVegetable.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_072_raifort", [](Plate& p) {
        rootVegetable(p, {.crown = {200, 196},
                          .length = 128,
                          .shape = {21, 22, 19, 20, 17, 15, 11, 7},
                          .tail = 26,
                          .palette = mix(palettes::root, palettes::cream, 0.5),
                          .rough = 0.12,
                          .lenticels = 46,
                          .hairs = 16,
                          .leaf = {.shape = {0.25, 0.7, 0.95, 1, 0.9, 0.65, 0},
                                   .margin = crenate(16, 0.09),
                                   .veins = 11,
                                   .pucker = 0.24,
                                   .petiole = 0.26,
                                   .palette = palettes::leaf},
                          .leaves = 4,
                          .leafLength = 172,
                          .leafWidth = 27,
                          .leafSpread = 40});
        const Palette pale = mix(palettes::root, palettes::cream, 0.5);
        tube(p, {{206, 264}, {232, 286}, {250, 326}}, {9, 7, 2}, {.palette = pale, .rough = 0.14});
        tube(p, {{194, 246}, {166, 270}, {150, 312}}, {8, 6, 2}, {.palette = pale, .rough = 0.14});
        for (const double y : {204.0, 214.0, 226.0})
            p.stroke({{181, y}, {200, y + 4}, {219, y}}, {.width = 0.8});
    }};
