// Pistachio, Pistacia vera: leaves of five round leaflets, a hanging cluster of rosy fruits; nuts whose pale
// shell splits at the tip on a green kernel.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Path.h"
#include "plates/engraver/Relief.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_056_pistache", [](Plate& p) {
        const LeafKind five{.build = LeafKind::Build::pinnate,
                            .shape = shapes::orbicular,
                            .veins = 6,
                            .petiole = 0.24,
                            .palette = palettes::leaf,
                            .leaflets = 2,
                            .leafletWidth = 0.4};
        const Path spine = twig(p, {{76, 74}, {150, 56}, {232, 64}, {322, 50}}, {6, 5, 3});
        growLeaf(p, along(spine, 0.14), 106, 118, 37, five, -6);
        growLeaf(p, along(spine, 0.85), 74, 120, 37, five, 6);
        const Path axis{{204, 62}, {200, 110}, {205, 168}};
        const Path rachis = spline(axis);
        for (int k = 0; k < 15; ++k) {
            const double q = 0.14 + 0.86 * k / 14.0, side = k % 2 == 0 ? 1 : -1;
            const Point at = along(rachis, q);
            const Point tip = at + Point{side * ((k % 4 < 2 ? 54 : 25) * (1.1 - 0.6 * q)), 16};
            stem(p, {at, lerp(at, tip, 0.6) + Point{0, -3}, tip}, {1.5, 1.3}, palettes::redstem);
            ball(p, tip + Point{0, 4}, 13,
                 {.palette = mix(mix(palettes::rose, palettes::crimson, 0.35), palettes::leafy,
                                 p.random.uniform(0, 0.4)),
                  .direction = -90 + side * 20,
                  .squash = 1.35});
        }
        stem(p, axis, {2.6, 1.8}, palettes::redstem);
        ground(p, 76, 340, 318, 4);
        const auto nut = [&](Point at, double degrees, double size) {
            const Point ax = direction(degrees), side = rightOf(ax);
            const auto o = [&](double x, double y) { return at + ax * (x * size) + side * (y * size); };
            const Path shell =
                closedSpline({o(-1, 0), o(-0.8, 0.42), o(-0.2, 0.7), o(0.5, 0.62), o(0.98, 0.26),
                              o(0.98, -0.26), o(0.5, -0.62), o(-0.2, -0.7), o(-0.8, -0.42)});
            relief(p, shell,
                   {.palette = palettes::cream, .bevel = size * 0.7, .coverage = 0.4, .contour = 1.1});
            const Path gape = closedSpline({o(-0.5, 0.02), o(0, 0.16), o(0.6, 0.27), o(1.04, 0.28), o(1.1, 0),
                                            o(1.04, -0.26), o(0.6, -0.24), o(0, -0.13)});
            p.knockOut(gape, {.halo = 0.4, .shade = 0.2});
            p.flat(gape, palettes::darkwood, 0.8);
            const Path kernel = closedSpline({o(-0.3, 0.02), o(0.1, 0.12), o(0.6, 0.2), o(0.96, 0.16),
                                              o(1.02, 0), o(0.96, -0.14), o(0.6, -0.17), o(0.1, -0.1)});
            relief(p, kernel,
                   {.palette = Palette{0xD9E58C, 0x9BBF3E, 0x55762A}, .bevel = size * 0.2, .hatched = false});
            p.contour(gape, 1.1);
        };
        nut({122, 272}, -32, 50);
        nut({222, 262}, -96, 50);
        nut({308, 284}, -150, 46);
    }};
