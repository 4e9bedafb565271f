// Black salsify, Scorzonera hispanica: two long even roots with black skin, lance leaves, a yellow head of
// rays alone.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/RootVegetable.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_038_scorsonere", [](Plate& p) {
        const LeafKind blade{
            .shape = shapes::lance, .margin = wavy(7, 0.1), .veins = 4, .parallel = true, .petiole = 0.12};
        const Palette skin = mix(palettes::black, palettes::earth, 0.35);
        stem(p, {{158, 138}, {180, 100}, {202, 62}}, {2.6, 2});
        const RootVegetableForm left{.crown = {148, 128},
                                     .length = 196,
                                     .shape = {10, 12, 11.5, 11, 10.5, 9, 6, 2},
                                     .tail = 20,
                                     .palette = skin,
                                     .rough = 0.06,
                                     .lenticels = 34,
                                     .hairs = 12,
                                     .leaf = blade,
                                     .leaves = 4,
                                     .leafLength = 112,
                                     .leafWidth = 15,
                                     .leafSpread = 44,
                                     .direction = 52};
        RootVegetableForm right = left;
        right.crown = {262, 132};
        right.direction = 130;
        rootVegetable(p, left);
        rootVegetable(p, right);
        compositeHead(p, {202, 60}, -84,
                      {.rays = 19,
                       .length = 40,
                       .width = 6,
                       .shape = {0.5, 0.8, 0.95, 1, 1, 0.8},
                       .palette = palettes::yellow,
                       .rings = 3,
                       .disc = 0,
                       .baseAngle = 46,
                       .tipAngle = 84,
                       .notch = 0.06,
                       .tilt = 50,
                       .involucre = 9,
                       .washLift = 0.3});
    }};
