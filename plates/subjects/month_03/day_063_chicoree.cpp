// Chicory, Cichorium intybus: stiff forked stems nearly bare, stalkless sky-blue heads of square-tipped
// rays, dandelion leaves at the foot.

#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_063_chicoree", [](Plate& p) {
        const LeafKind runcinate{.shape = {0.2, 0.35, 0.55, 0.8, 1, 0.7, 0},
                                 .margin = lobed(5, 0.6),
                                 .veins = 5,
                                 .slant = -0.1,
                                 .petiole = 0.08};
        rootlets(p, {200, 336}, 8, 90, 60, 14);
        for (const double d : {-164.0, -16.0, -142.0, -38.0})
            growLeaf(p, {200, 318}, d, 112, 20, runcinate, d < -90 ? 16 : -16);
        tube(p, {{200, 312}, {202, 330}, {198, 352}}, {9, 7, 2}, {.palette = palettes::root, .rough = 0.08});
        const Path left{{198, 250}, {164, 180}, {122, 96}}, right{{203, 230}, {240, 170}, {286, 120}},
            middle{{200, 320}, {203, 220}, {196, 120}, {204, 52}};
        const auto bracts = [&](const Path& curve, double q) {
            for (const double s : {-1.0, 1.0})
                leaflet(p, along(curve, q), polar(along(curve, q), angleAlong(curve, q) + s * 44, 30),
                        {.width = 4.4});
        };
        for (const Path& way : {left, right, middle}) {
            const Path curve = spline(way);
            for (const double q : {0.5, 0.72})
                bracts(curve, q);
            tube(p, way, {3.4, 2.8, 2}, {.lines = Lines::along});
        }
        const CompositeForm head{.rays = 17,
                                 .length = 36,
                                 .width = 6.2,
                                 .shape = {0.45, 0.7, 0.9, 1, 1, 0.9},
                                 .palette = palettes::skyblue,
                                 .tips = palettes::blue,
                                 .rings = 2,
                                 .disc = 0,
                                 .baseAngle = 64,
                                 .tipAngle = 86,
                                 .notch = 0.1,
                                 .tilt = 60,
                                 .involucre = 7};
        compositeHead(p, {122, 98}, -104, head);
        compositeHead(p, {286, 122}, -70, head);
        compositeHead(p, {204, 56}, -88, head);
        compositeHead(p, {236, 180}, -34, head, 0.86);
        compositeHead(p, {166, 186}, -150, head, 0.8);
        scales(p, {201, 150}, -50, {.radius = 5, .length = 17, .rows = 4, .perRow = 6});
    }};
