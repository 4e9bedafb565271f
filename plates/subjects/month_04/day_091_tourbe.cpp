#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/minerals/Block.h"

using namespace tambrelle::engraver;

namespace {

// A brick as the peat spade cuts it, with the roots of bog plants hanging from it.
void brick(Plate& p, Point front, Point left, Point right, std::uint64_t seed) {
    const Palette moss{0xB98A5A, 0x6E4526, 0x341D10}, peat{0xA67850, 0x5C3920, 0x2C180D};
    const RoughBlock b = roughBlock(p, {.front = front, .left = left, .right = right, .height = 30},
                                    {.beds = {{0.5, peat, 0}, {1, moss, 0.6}},
                                     .seed = seed,
                                     .rough = 0.9,
                                     .grain = 9,
                                     .flat = 3,
                                     .wavy = 3});
    for (const ReliefSurface* face : {&b.left, &b.right, &b.top}) {
        const Bounds r = boundsOf(face->outline);
        for (int k = 0; k < 16; ++k) {
            const double x = p.random.uniform(r.left, r.right);
            const Point at{x, p.random.uniform(r.top, r.bottom)};
            if (!face->covers(at))
                continue;
            const Point end = polar(at, p.random.uniform(-30, 210), p.random.uniform(8, 18));
            p.stroke(spline({at, lerp(at, end, 0.5) + Point{p.random.around(3), p.random.around(3)}, end}, 6),
                     {.width = 0.9, .swell = 0.1, .fade = 0.6, .colour = Colour{0xE3C79A}});
        }
    }
}

} // namespace

// Peat: cut into dark brown bricks full of root fibres, and stacked crosswise with gaps to dry.
static const Subject subject{"day_091_tourbe", [](Plate& p) {
                                 ground(p, 70, 336, 298, 6);
                                 brick(p, {214, 268}, {-98, -22}, {34, -14}, 11);
                                 brick(p, {164, 288}, {-92, -20}, {34, -14}, 12);
                                 brick(p, {262, 290}, {-86, -19}, {36, -16}, 13);
                                 brick(p, {160, 243}, {-34, -10}, {94, -26}, 14);
                                 brick(p, {220, 254}, {-36, -10}, {92, -26}, 15);
                                 brick(p, {196, 214}, {-88, -20}, {34, -14}, 16);
                                 brick(p, {252, 219}, {-88, -20}, {38, -16}, 17);
                                 brick(p, {196, 180}, {-34, -10}, {88, -24}, 18);
                             }};
