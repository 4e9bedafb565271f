#include "plates/engraver/Ground.h"
#include "plates/engraver/Relief.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/carpentry/Iron.h"
#include "plates/engraver/carpentry/Wood.h"

using namespace tambrelle::engraver;

// The weeding hoe: a long thin handle, a swan neck of iron, a small straight blade drawn through the soil; a weed.
static const Subject subject{"day_230_sarcloir", [](Plate& p) {
    ground(p, 58, 344, 292, 6);
    pole(p, {{172, 212}, {236, 152}, {334, 62}}, {6.4, 5.8, 6.4});
    tube(p, {{196, 189}, {160, 222}, {128, 232}, {110, 240}, {108, 262}}, {8.5, 8, 6, 5.4, 6.5}, {.palette = palettes::iron, .spacing = 1.8, .tone = 0.06, .contour = 1});
    forged(p, {{54, 258}, {60, 253}, {164, 250}, {170, 254}, {174, 294}, {172, 299}, {56, 303}, {53, 298}}, {.bevel = 5, .heightScale = 0.5, .tone = 0.16, .palette = palettes::steel, .lines = {0.98, 0.12, 0.2}});
    p.stroke({{57, 292}, {112, 290}, {172, 288}}, Pen{.width = 0.7, .swell = 0.1, .fade = 0.1});
    for (const double x : {104.0, 114.0})
        p.dot({x, 262}, 1.6);
    LeafForm weed;
    weed.width = 12;
    weed.margin = lobed(5, 0.55);
    weed.veins = 5;
    for (const Point tip : {Point{206, 262}, Point{330, 258}, Point{226, 222}, Point{312, 218}})
        leaf(p, {{268, 292}, lerp(Point{268, 292}, tip, 0.5) + Point{0, -12}, tip}, weed);
    leaf(p, {{268, 292}, {266, 250}, {272, 208}}, weed);
    ReliefForm soil;
    soil.palette = palettes::earth;
    soil.crossFrom = 0.55;
    relief(p, closedSpline({{46, 304}, {60, 296}, {92, 299}, {130, 295}, {168, 298}, {184, 292}, {200, 302}, {176, 312}, {110, 316}, {62, 312}}, 8), soil);
    relief(p, closedSpline({{236, 300}, {252, 290}, {270, 287}, {290, 291}, {304, 301}, {270, 308}}, 8), soil);
}};
