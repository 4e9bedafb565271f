#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/minerals/Block.h"

using namespace tambrelle::engraver;

namespace {

// A turf as the peat spade cuts it: crumbling, with the roots of bog plants in it and hanging from its edges.
void brick(Plate& p, Point front, Point left, Point right, std::uint64_t seed) {
    const Palette moss{0xAE8055, 0x633D22, 0x2C180D}, peat{0x94694A, 0x4E3020, 0x22120A};
    const RoughBlock b = roughBlock(p, {.front = front, .left = left, .right = right, .height = 33},
                                    {.beds = {{0.5, peat, 0}, {1, moss, 0.6}},
                                     .seed = seed,
                                     .rough = 0.8,
                                     .grain = 8,
                                     .flat = 1.6,
                                     .ragged = 1.7,
                                     .wavy = 3,
                                     .topTone = -0.3});
    for (const ReliefSurface* face : {&b.left, &b.right}) // fibres that stand out from the edges
        for (const Point at : resample(face->outline, 34))
            if (p.random.chance(0.4)) {
                const Point end = polar(at, p.random.uniform(0, 180), p.random.uniform(3, 8));
                p.stroke({at, lerp(at, end, 0.6) + Point{p.random.around(1.5), 0}, end},
                         {.width = 0.6, .swell = 0, .fade = 0.7});
            }
    for (const ReliefSurface* face : {&b.left, &b.right, &b.top}) {
        const Bounds r = boundsOf(face->outline);
        for (int k = 0; k < 7; ++k) {
            const double x = p.random.uniform(r.left, r.right);
            const Point at{x, p.random.uniform(r.top, r.bottom)};
            if (!face->covers(at))
                continue;
            const Point end = polar(at, p.random.uniform(-30, 210), p.random.uniform(5, 11));
            p.stroke(spline({at, lerp(at, end, 0.5) + Point{p.random.around(3), p.random.around(3)}, end}, 6),
                     {.width = 0.8, .swell = 0.1, .fade = 0.6, .colour = Colour{0xE3C79A}});
        }
    }
}

} // namespace

// Peat: cut into short dark turves full of root fibres, piled in a ridge to dry.
static const Subject subject{
    "day_091_tourbe", [](Plate& p) {
        ground(p, 60, 340, 292, 9);
        const Point foot{184, 318}, left{-66, -14}, right{38, -12};
        std::uint64_t seed = 10;
        for (int layer = 0; layer < 4; ++layer)
            for (int row = 3 - layer; row >= 0; --row)
                for (const double place : {1.06, 0.0}) {
                    const bool within = row > 0 && row < 3 - layer; // hidden by those before and above it
                    if (place > 0 && (within || layer == 3))
                        continue;
                    const double r = row * 1.06 + 0.53 * layer + p.random.around(0.06);
                    const double l = place + (layer == 3 ? 0.5 : 0.0) + p.random.around(0.05);
                    brick(p, foot + left * l + right * r - Point{0, 34.0 * layer}, left, right, ++seed);
                }
    }};
