#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/minerals/Crystal.h"
#include "plates/engraver/minerals/Stone.h"

using namespace tambrelle::engraver;

namespace {

struct Grown {
    Point centre;
    double scale;
    Vector3 turn;
    double blunt;
    double elongation;
};

void grow(Plate& p, const Grown& g) {
    crystal(
        p, crystals::bipyramid(g.blunt, g.elongation), g.centre,
        {.palette = palettes::sulphur, .scale = g.scale, .turn = g.turn, .tone = -0.02, .contrast = 1.15});
}

} // namespace

// Native sulphur: lemon-yellow blunt bipyramids on their grey matrix.
static const Subject subject{
    "day_094_soufre", [](Plate& p) {
        ground(p, 74, 326, 300, 5);
        stone(
            p,
            {{74, 292},
             {88, 262},
             {130, 244},
             {190, 240},
             {250, 244},
             {296, 266},
             {322, 290},
             {288, 310},
             {180, 314},
             {106, 310}},
            {.palette = palettes::stone, .seed = 4, .rough = 1.6, .depth = 30, .ragged = 2.2, .tone = 0.06});
        for (const Grown& g :
             {Grown{{136, 226}, 38, {20, 30, -28}, 0.3, 1.5}, Grown{{264, 220}, 44, {18, 55, 26}, 0.28, 1.5},
              Grown{{302, 264}, 24, {25, 20, 48}, 0.35, 1.5}, Grown{{196, 168}, 60, {16, 38, 4}, 0.26, 1.7},
              Grown{{146, 270}, 34, {25, 60, -50}, 0.4, 1.2}, Grown{{232, 268}, 37, {30, 20, 20}, 0.36, 1.2},
              Grown{{190, 286}, 28, {22, 40, -10}, 0.45, 1.0}, Grown{{94, 278}, 21, {20, 40, -40}, 0.3, 1.5}})
            grow(p, g);
    }};
