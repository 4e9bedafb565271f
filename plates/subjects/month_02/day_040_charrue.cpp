#include "plates/engraver/Face.h"
#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/carpentry/Soil.h"
#include "plates/engraver/carpentry/Wheel.h"
#include "plates/engraver/carpentry/Wood.h"

using namespace tambrelle::engraver;

// The wheeled plough: beam on a fore-carriage, coulter before the share, a twisted mouldboard, two stilts.
static const Subject subject{
    "day_040_charrue", [](Plate& p) {
        // The far stilt and wheel.
        pole(p, {{168, 236}, {208, 186}, {244, 120}, {262, 82}, {284, 70}}, {5.6, 5.2, 4.8, 4.6, 5});
        wheel(p, {110, 226}, {.radius = 46, .squash = 0.86, .rim = 6.5});
        plank(p, {{118, 262}, {214, 252}, {222, 268}, {128, 276}}, 0.45);
        plank(p, {{160, 156}, {175, 154}, {184, 252}, {168, 254}}, 0.42);
        // The mouldboard turns from lying to standing.
        surface(p, {{122, 264}, {140, 232}, {158, 206}, {172, 190}},
                {{188, 276}, {222, 258}, {246, 230}, {254, 196}},
                {.tone =
                     [](double u, double v) {
                         return 0.12 + 0.62 * v * v + 0.22 * (1 - u) * (1 - v) -
                                0.2 * maths::exp(-(v - 0.35) * (v - 0.35) / 0.04);
                     },
                 .linesAlong = true,
                 .contour = 1.1});
        blade(p, {{74, 284}, {104, 262}, {146, 250}}, {{74, 284}, {128, 282}, {196, 274}},
              {.tone = 0.40, .contour = 1.1});
        pole(p, {{62, 176}, {112, 160}, {166, 148}, {216, 146}, {240, 154}}, {6.6, 7.4, 8, 8, 6.6});
        blade(p, {{130, 142}, {126, 196}, {108, 262}}, {{143, 142}, {140, 198}, {114, 264}}, {.tone = 0.44});
        face(p, {{124, 145}, {150, 142}, {151, 168}, {125, 172}},
             {.tone = 0.5, .palette = palettes::iron, .shade = 0.3});
        // The near stilt.
        pole(p, {{186, 254}, {216, 196}, {248, 146}, {286, 104}, {326, 88}}, {6.4, 6.2, 5.8, 5.2, 5.6});
        pole(p, {{226, 152}, {252, 150}}, 3.4);
        pole(p, {{250, 112}, {276, 122}}, 3.2);
        plank(p, {{72, 162}, {88, 160}, {94, 228}, {80, 230}}, 0.40);
        wheel(p, {82, 234}, {.radius = 52, .squash = 0.86, .rim = 7.5});
        soil(p, {232, 286}, 62, 9);
        soil(p, {150, 290}, 56, 7);
        ground(p, 30, 322, 280, 7);
    }};
