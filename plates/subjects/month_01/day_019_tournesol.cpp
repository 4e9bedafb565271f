// Sunflower, Helianthus annuus: one giant head of yellow rays about a broad brown disc; large cordate
// leaves.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_019_tournesol", [](Plate& p) {
        stem(p, {{196, 350}, {204, 290}, {200, 230}, {200, 172}}, {6.5, 5.6, 5});
        const LeafForm blade{.width = 33, .shape = shapes::cordate, .margin = serrate(9, 0.09), .veins = 7};
        stem(p, {{203, 306}, {180, 296}, {160, 288}}, {2.6, 2});
        leaf(p, {{162, 289}, {124, 284}, {74, 316}}, blade);
        stem(p, {{203, 286}, {226, 276}, {244, 266}}, {2.6, 2});
        LeafForm right = blade;
        right.palette = palettes::leafy;
        leaf(p, {{242, 267}, {284, 258}, {332, 286}}, right);
        compositeHead(p, {200, 128}, -100,
                      {.rays = 25,
                       .length = 58,
                       .width = 9,
                       .shape = {0.5, 0.9, 1, 0.8, 0.45, 0},
                       .palette = palettes::yellow,
                       .tips = palettes::orange,
                       .rings = 1,
                       .disc = 37,
                       .dome = 0.16,
                       .discPalette = palettes::darkwood,
                       .baseAngle = 78,
                       .tipAngle = 88,
                       .notch = 0,
                       .tilt = 72,
                       .involucre = 30,
                       .washLift = 0.28});
    }};
