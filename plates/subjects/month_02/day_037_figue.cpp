// Fig, Ficus carica: deep palmate leaves with rounded lobes, purple ribbed drops on a stout twig; one cut,
// red within and full of seeds.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Maths.h"
#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Branch.h"
#include "plates/engraver/botany/CompoundLeaf.h"

#include <vector>

using namespace tambrelle::engraver;

static const Subject subject{
    "day_037_figue", [](Plate& p) {
        twig(p, {{92, 44}, {150, 62}, {206, 60}, {264, 76}, {312, 62}}, {7, 6, 4.2});
        bud(p, {308, 63}, -18, 22, palettes::leafy);
        const std::vector<Lobe> lobes = {{-106, 0.55}, {-50, 0.88}, {0, 1}, {50, 0.88}, {106, 0.55}};
        stem(p, {{150, 62}, {132, 78}, {122, 98}}, {3, 2.4});
        palmateLeaf(p, {122, 98}, 112, 118,
                    {.lobes = lobes,
                     .sinus = 0.5,
                     .teeth = 4,
                     .toothHeight = 1.4,
                     .palette = palettes::darkleaf,
                     .bulge = 1.6});
        stem(p, {{262, 76}, {276, 88}, {288, 98}}, {3, 2.4});
        palmateLeaf(p, {288, 98}, 66, 104,
                    {.lobes = lobes,
                     .sinus = 0.5,
                     .teeth = 4,
                     .toothHeight = 1.4,
                     .palette = palettes::leaf,
                     .bulge = 1.6});
        const auto fig = [&](Point at, double degrees, double size) {
            lathe(p, at, 86 * size,
                  Profile(+[](double q) {
                      return 5 * (1 - q) + 3 +
                             32 * maths::pow(maths::sin(maths::pi * maths::pow(q, 1.5)), 0.85);
                  }).times(size),
                  {.direction = degrees,
                   .tilt = 0.16,
                   .palette = mix(palettes::grape, palettes::plum, 0.4),
                   .lines = Lines::along,
                   .ribs = 11,
                   .ribDepth = 0.03});
        };
        fig({184, 62}, 104, 1.0);
        fig({226, 66}, 78, 1.06);
        const Path half = closedSpline({{214, 186},
                                        {224, 210},
                                        {250, 242},
                                        {252, 276},
                                        {228, 300},
                                        {196, 300},
                                        {174, 278},
                                        {178, 242},
                                        {202, 210}});
        ground(p, 160, 280, 300, 4);
        p.knockOut(half);
        p.flat(half, palettes::leafy, 0.25);
        p.contour(half, 1.1);
        const Path flesh = closedSpline({{214, 214},
                                         {226, 230},
                                         {242, 252},
                                         {242, 274},
                                         {224, 290},
                                         {200, 290},
                                         {184, 274},
                                         {188, 250},
                                         {202, 230}});
        p.flat(flesh, palettes::red, 0.42);
        p.contour(flesh, 0.5);
        const Path hollow = closedSpline({{213, 246}, {222, 260}, {218, 276}, {208, 276}, {204, 260}});
        p.flat(hollow, palettes::crimson, 0.75);
        for (int k = 0; k < 190; ++k) {
            const Point at{213 + p.random.around(30), 254 + p.random.around(38)};
            if (!contains(flesh, at))
                continue;
            const Point in = at + unit(Point{213, 262} - at) * 5;
            p.stroke({at, in}, {.width = 0.5, .alpha = 0.8});
            p.dot(in, 1.1, palettes::cream.light);
            p.dot(in, 0.6);
        }
    }};
