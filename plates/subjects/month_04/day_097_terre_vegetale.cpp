#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/minerals/Block.h"

using namespace tambrelle::engraver;

// Topsoil: a cut sod, dark crumbling earth with pebbles and roots under living grass, paler towards the
// subsoil.
static const Subject subject{
    "day_097_terre_vegetale", [](Plate& p) {
        ground(p, 72, 332, 288, 9);
        const Box sod{.front = {226, 312}, .left = {-146, -30}, .right = {92, -40}, .height = 108};
        const RoughBlock b =
            roughBlock(p, sod,
                       {.beds = {{0.26, {0xE2C08E, 0xAE7F4C, 0x6A4524}, 0}, {1, palettes::earth, 0.8}},
                        .seed = 3,
                        .rough = 1.9,
                        .grain = 11,
                        .ragged = 2,
                        .wavy = 5,
                        .leftTone = 0.04,
                        .rightTone = 0.32});
        for (const ReliefSurface* face : {&b.left, &b.right})
            strew(p, *face, 90, {{0.5, Colour{0xE6D6B8}, 0.8}, {0.3, sepia, 1}, {0.2, Colour{0xA58A6A}, 0.9}},
                  0.8, 2.6);
        for (int k = 0; k < 13; ++k) {
            const double t = p.random.uniform(0.04, 0.96);
            const Point from = k < 8 ? sod.at(t, 0, 1) : sod.at(0, t, 1);
            const Point a = from + Point{p.random.around(8), 24},
                        e = a + Point{p.random.around(12), p.random.uniform(16, 34)};
            p.stroke(
                spline({from, a, e}, 8),
                {.width = 1.2, .swell = 0, .fade = 0.9, .colour = k % 3 == 0 ? sepia : Colour{0xF0E0BF}});
        }
        // An earthworm leaves its hole.
        p.ink(ellipse({166, 269}, 6, 4.5), sepia, 0.9);
        tube(p, {{164, 268}, {152, 256}, {138, 262}, {130, 278}, {116, 282}, {106, 268}, {96, 264}},
             {3.6, 4.4, 4.8, 4.8, 4.2, 1.6},
             {.palette = {0xF8D2C4, 0xDB9280, 0x8C4A3E}, .spacing = 1.5, .hatchFrom = 0.2, .contour = 0.8});
        const Path top = sod.top();
        p.flat(top, palettes::leaf, 0.6);
        std::vector<Point> roots;
        for (int k = 0; k < 560; ++k) {
            const double l = p.random.uniform();
            roots.push_back(sod.at(l, p.random.uniform(), 1));
        }
        std::sort(roots.begin(), roots.end(), [](Point u, Point v) { return u.y < v.y; });
        p.castShadows(false);
        for (const Point q : roots) {
            const Point tip = q + Point{p.random.around(8), -p.random.uniform(12, 28)};
            const Point side = rightOf(unit(tip - q)) * 1.15;
            const Path left =
                spline({q - side, lerp(q, tip, 0.5) - side + Point{p.random.around(2), 0}, tip}, 5);
            const Path blade = band(left, {q + side});
            p.knockOut(blade, {.halo = 0.1, .shade = 0});
            p.flat(blade, palettes::leaf, p.random.uniform(0.15, 0.75));
            p.stroke(left, {.width = 0.45, .swell = 0.1, .fade = 0.3});
        }
        p.castShadows(true);
    }};
