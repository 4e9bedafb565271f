#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/carpentry/Iron.h"
#include "plates/engraver/carpentry/Soil.h"
#include "plates/engraver/carpentry/Wood.h"

using namespace tambrelle::engraver;

// The weeding hoe: a long thin handle, a swan neck of iron, a small straight blade drawn through the soil; a
// weed.
static const Subject subject{
    "day_230_sarcloir", [](Plate& p) {
        ground(p, 58, 344, 292, 6);
        pole(p, {{172, 212}, {236, 152}, {334, 62}}, {6.4, 5.8, 6.4});
        tube(p, {{196, 189}, {160, 222}, {128, 232}, {110, 240}, {108, 262}}, {8.5, 8, 6, 5.4, 6.5},
             {.palette = palettes::iron, .spacing = 1.8, .tone = 0.06, .contour = 1});
        forged(p,
               {{60, 266}, {66, 261}, {156, 258}, {162, 262}, {166, 294}, {164, 299}, {62, 303}, {59, 298}},
               {.bevel = 5,
                .heightScale = 0.5,
                .tone = 0.16,
                .palette = palettes::steel,
                .lines = {0.98, 0.12, 0.2}});
        p.stroke({{62, 293}, {112, 291}, {164, 289}}, Pen{.width = 0.7, .swell = 0.1, .fade = 0.1});
        for (const double x : {104.0, 114.0})
            p.dot({x, 268}, 1.6);
        LeafForm weed;
        weed.width = 12;
        weed.margin = lobed(5, 0.55);
        weed.veins = 5;
        for (const Point tip : {Point{206, 262}, Point{330, 258}, Point{226, 222}, Point{312, 218}})
            leaf(p, {{268, 292}, lerp(Point{268, 292}, tip, 0.5) + Point{0, -12}, tip}, weed);
        leaf(p, {{268, 292}, {266, 250}, {272, 208}}, weed);
        soil(p, {114, 304}, 66, 8);
        soil(p, {182, 300}, 22, 9);
        soil(p, {268, 299}, 36, 10);
    }};
