#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/carpentry/Wheel.h"
#include "plates/engraver/carpentry/Wood.h"

using namespace tambrelle::engraver;

// The wheeled plough: beam on a fore-carriage, coulter before the share, a twisted mouldboard, two stilts.
static const Subject subject{"day_040_charrue", [](Plate& p) {
    pole(p, {{160, 210}, {200, 172}, {238, 126}, {278, 100}}, {5, 4.4, 4, 4.4});
    wheel(p, {84, 214}, {.radius = 38, .squash = 0.86});
    plank(p, {{108, 240}, {188, 230}, {196, 246}, {118, 254}}, 0.45);
    plank(p, {{149, 148}, {162, 146}, {172, 230}, {157, 232}}, 0.42);
    // The mouldboard turns from lying to standing.
    surface(p, {{106, 242}, {122, 212}, {138, 184}, {148, 166}}, {{164, 254}, {194, 234}, {216, 206}, {226, 174}},
            {.tone = [](double u, double v) { return 0.14 + 0.5 * v + 0.18 * (1 - u) - 0.24 * maths::exp(-(v - 0.35) * (v - 0.35) / 0.04); },
             .linesAlong = true});
    blade(p, {{68, 262}, {94, 242}, {126, 232}}, {{68, 262}, {110, 260}, {168, 252}}, {.tone = 0.34});
    pole(p, {{46, 166}, {100, 152}, {154, 142}, {206, 140}, {228, 146}}, {6, 6.6, 7.2, 7.2, 6});
    blade(p, {{112, 136}, {106, 182}, {92, 240}}, {{123, 136}, {120, 184}, {98, 242}}, {.tone = 0.4});
    face(p, {{107, 139}, {131, 136}, {132, 160}, {108, 164}}, {.tone = 0.5, .palette = palettes::iron, .shade = 0.3});
    pole(p, {{172, 230}, {200, 178}, {224, 142}, {254, 106}, {298, 82}}, {5.6, 5.4, 5, 4.4, 4.8});
    pole(p, {{214, 162}, {236, 154}}, 2.8);
    pole(p, {{236, 126}, {262, 124}}, 2.8);
    plank(p, {{56, 152}, {70, 150}, {78, 212}, {64, 214}}, 0.40);
    wheel(p, {58, 216}, {.radius = 44, .squash = 0.86, .rim = 6.5});
    ground(p, 16, 300, 254, 6);
}};
