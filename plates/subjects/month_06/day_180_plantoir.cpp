#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/carpentry/Iron.h"
#include "plates/engraver/carpentry/Soil.h"
#include "plates/engraver/carpentry/Wood.h"

using namespace tambrelle::engraver;

// The dibber: a stout peg with a crutch handle and an iron point, the hole it made and a seedling to set.
static const Subject subject{"day_180_plantoir", [](Plate& p) {
                                 ground(p, 64, 336, 284, 7);
                                 const Path hole = ellipse({150, 296}, 34, 10, 50);
                                 p.knockOut(hole, {.halo = 0.6, .shade = 0});
                                 p.flat(hole, palettes::earth, 0.85);
                                 p.ink(hole, sepia, 0.55);
                                 LatheForm iron;
                                 iron.direction = 84;
                                 iron.palette = palettes::iron;
                                 iron.tilt = 0.08;
                                 iron.spacing = 1.8;
                                 // Handle, shaft and point on one axis that leans a little.
                                 const Placement lie{{130, 78}, 84};
                                 pole(p, lie.at({{4, -50}, {0, 0}, {4, 50}}), {10, 13, 10});
                                 LatheForm shaft = iron;
                                 shaft.palette = palettes::wood;
                                 shaft.lines = Lines::along;
                                 lathe(p, lie.at(8, 0), 146, {13, 17, 19, 20, 21, 21}, shaft);
                                 lathe(p, lie.at(144, 0), 72, {21.5, 20, 16, 10, 2}, iron);
                                 ferrule(p, lie.at(140, 0), lie.at(150, 0), {22.5, 23, 22.5});
                                 soil(p, {106, 300}, 18, 9);
                                 soil(p, {194, 300}, 18, 9);
                                 soil(p, {150, 308}, 44, 8);
                                 // The seedling.
                                 stem(p, {{272, 296}, {270, 256}, {274, 226}}, {4.4, 3.4});
                                 LeafForm blade;
                                 blade.width = 19;
                                 blade.veins = 5;
                                 blade.shape = shapes::obovate;
                                 blade.margin = wavy(5, 0.1);
                                 leaf(p, {{272, 252}, {244, 224}, {212, 222}}, blade);
                                 leaf(p, {{272, 250}, {302, 232}, {332, 242}}, blade);
                                 leaf(p, {{273, 230}, {252, 186}, {252, 152}}, blade);
                                 leaf(p, {{274, 230}, {296, 190}, {312, 162}}, blade);
                                 blade.width = 11;
                                 leaf(p, {{274, 230}, {276, 204}, {280, 178}}, blade);
                                 soil(p, {273, 300}, 46, 12);
                             }};
