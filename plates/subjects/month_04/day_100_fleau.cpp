#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/carpentry/Straw.h"
#include "plates/engraver/carpentry/Wood.h"

using namespace tambrelle::engraver;

// The flail: a long staff, a shorter and stouter swingle, joined by loops of leather; ears of corn beneath.
static const Subject subject{
    "day_100_fleau", [](Plate& p) {
        ground(p, 66, 336, 302, 5);
        straw(p, {196, 300}, 110, 10, {.count = 70, .length = 60, .spread = 16, .radius = 1.2});
        const Palette leather{0xC9966A, 0x84502E, 0x46281A};
        pole(p, {{84, 296}, {150, 208}, {206, 134}, {246, 84}}, {6.6, 6, 6, 6.6});
        pole(p, {{300, 122}, {307, 180}, {309, 236}, {306, 282}}, {8, 10.5, 12, 11});
        // Cap of leather on either stick, and the thong that links them.
        tube(p, {{232, 101}, {247, 82}, {256, 71}}, {8.6, 9.4, 7},
             {.palette = leather, .spacing = 1.7, .contour = 0.9});
        tube(p, {{303, 142}, {300, 122}, {296, 107}}, {11, 11, 7.5},
             {.palette = leather, .spacing = 1.7, .contour = 0.9});
        tube(p, {{252, 84}, {252, 62}, {270, 58}, {288, 78}, {302, 106}, {306, 124}}, {3.4, 3.4, 3.4, 3.4},
             {.palette = leather, .spacing = 1.6, .contour = 0.8});
        tube(p, {{246, 80}, {262, 74}, {274, 92}, {288, 108}, {294, 122}}, {3.2, 3.2, 3.2, 3.2},
             {.palette = leather, .spacing = 1.6, .contour = 0.8});
        grains(p, {226, 312}, 90, 5, 40);
    }};
