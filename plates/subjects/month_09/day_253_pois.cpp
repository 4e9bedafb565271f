// Pea, Pisum sativum: leaves of few broad leaflets with great clasping stipules and tendrils, white flowers,
// an open pod with round peas.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Pod.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_253_pois", [](Plate& p) {
        const Path vine = stem(p, {{96, 338}, {150, 290}, {150, 220}, {196, 162}, {202, 92}, {236, 52}},
                               {3, 2.6, 1.6}, palettes::bluegreen);
        const LeafKind blade{
            .shape = shapes::ovate, .veins = 4, .petiole = 0.03, .palette = palettes::bluegreen};
        const auto node = [&](double q, double degrees, double size) {
            const Point at = along(vine, q);
            const Point end = polar(at, degrees, size);
            stem(p, {at, lerp(at, end, 0.5), end}, {1.4, 1}, palettes::bluegreen);
            for (const double share : {0.45, 0.8})
                for (const double side : {-1.0, 1.0})
                    growLeaf(p, lerp(at, end, share), degrees + side * 60, size * 0.52, size * 0.15, blade);
            tendril(p, end, degrees,
                    {.length = 24, .turns = 2.2, .radius = 8, .hand = degrees < -90 ? -1 : 1});
            tendril(p, end, degrees - 36, {.length = 16, .turns = 1.8, .radius = 6, .hand = -1});
            for (const double side : {-1.0, 1.0})
                growLeaf(p, at, angleAlong(vine, q) + side * 88, size * 0.46, size * 0.2, blade);
        };
        node(0.2, -168, 76);
        node(0.42, -10, 84);
        node(0.64, -164, 82);
        node(0.88, -28, 66);
        const auto pea = [&](Point from, Point at, int side) {
            stem(p, {from, lerp(from, at, 0.5) + Point{0, 4}, at}, {1.2, 1});
            peaFlower(p, at, side > 0 ? -20 : -160, 46, palettes::whiteflower, side, palettes::whiteflower);
        };
        pea(along(vine, 0.64), {232, 150}, 1);
        pea(along(vine, 0.86), {172, 70}, -1);
        stem(p, {along(vine, 0.24), along(vine, 0.24) + Point{34, 2}, {222, 268}}, {1.4, 1.3});
        pod(p, {{218, 264}, {262, 292}, {318, 286}, {340, 270}}, {.width = 17, .seeds = 7});
        stem(p, {along(vine, 0.42), along(vine, 0.42) + Point{20, 16}, {196, 238}}, {1.3, 1.2});
    }};
