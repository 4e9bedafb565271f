// Watercress, Nasturtium officinale: hollow stems that creep in water and root at their joints, leaves of
// round leaflets with by far the largest at the end, clusters of small white flowers of four petals.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Inflorescence.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

namespace {

void cressLeaf(Plate& p, Point base, double degrees, double size, double bend) {
    const Path rib = spline({base, polar(base, degrees, size * 0.4), polar(base, degrees + bend, size)});
    tube(p, rib, {1.8, 1.2}, {.palette = palettes::stem});
    const auto round = [&](Point at, double way, double length, double breadth) {
        leaf(p, {at, polar(at, way, length * 0.5), polar(at, way, length)},
             {.width = length * breadth,
              .shape = {0.4, 0.8, 0.97, 1, 0.95, 0.8, 0.5, 0.1},
              .palette = mix(palettes::leaf, palettes::darkleaf, 0.4),
              .veins = 4,
              .contour = 0.75});
    };
    for (const auto& [q, reach] : {std::pair{0.38, 0.25}, {0.66, 0.31}})
        for (const double side : {-1.0, 1.0})
            round(along(rib, q), angleAlong(rib, q) + side * 72, size * reach, 0.5);
    round(along(rib, 0.86), angleAlong(rib, 1), size * 0.5, 0.56);
}

} // namespace

static const Subject subject{"day_047_cresson", [](Plate& p) {
                                 waterLines(p, 46, 354, 282, 10);
                                 const auto shoot = [&](const Path& spine, bool flowering) {
                                     const Path curve = spline(spine);
                                     for (const double q : {0.04, 0.14, 0.24})
                                         rootlets(p, along(curve, q), 5, 90, 60, 30);
                                     for (int k = 0; k < 3; ++k) {
                                         const double q = 0.36 + 0.23 * k, side = k % 2 == 0 ? 1 : -1;
                                         cressLeaf(p, along(curve, q), angleAlong(curve, q) + side * 60,
                                                   84 - 10.0 * k, -side * 12);
                                     }
                                     stem(p, spine, {4.4, 3.8, 2.6});
                                     if (flowering)
                                         corymb({.flower = flowers({.petals = 4,
                                                                    .length = 12.5,
                                                                    .width = 7.4,
                                                                    .baseAngle = 70,
                                                                    .tipAngle = 88,
                                                                    .shape = shapes::orbicular,
                                                                    .palette = palettes::whiteflower,
                                                                    .tilt = 62,
                                                                    .eye = 2,
                                                                    .washLift = 0}),
                                                 .count = 7,
                                                 .spread = 170,
                                                 .length = 24})(p, curve);
                                     else
                                         cressLeaf(p, curve.back(), angleAlong(curve, 1), 76, 4);
                                 };
                                 shoot({{70, 300}, {124, 282}, {146, 226}, {122, 150}}, false);
                                 shoot({{332, 300}, {282, 284}, {256, 222}, {280, 148}}, false);
                                 shoot({{146, 312}, {192, 288}, {204, 200}, {202, 96}}, true);
                             }};
