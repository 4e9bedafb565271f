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
                                     .rough = 0.6,
                                     .grain = 9,
                                     .flat = 3,
                                     .ragged = 1.1,
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
static const Subject subject{
    "day_091_tourbe", [](Plate& p) {
        ground(p, 76, 326, 286, 9);
        const Point foot{196, 308}, left{-114, -28}, right{104, -36};
        // What is seen between the bricks.
        const auto stack = [&](double l, double r, double up) {
            return foot + left * l + right * r - Point{0, 31 * up};
        };
        cutBlock(p, {.front = stack(0.08, 0.08, 0), .left = left * 0.84, .right = right * 0.84, .height = 90},
                 {.palette = {0x54402E, 0x38281A, 0x20150C},
                  .leftTone = 0.8,
                  .rightTone = 0.8,
                  .contour = 0,
                  .shade = 0});
        std::uint64_t seed = 10;
        for (int layer = 0; layer < 4; ++layer)
            for (const double place : {0.74, 0.37, 0.0}) {
                if (layer == 3 && place > 0.7)
                    continue;
                if (layer % 2 == 0)
                    brick(p, stack(0, place, layer), left, right * 0.28, ++seed);
                else
                    brick(p, stack(place, 0, layer), left * 0.28, right, ++seed);
            }
    }};
