// Pomegranate, Punica granatum: a leathery red globe with a crown of calyx teeth; one split, packed with
// red seeds; narrow glossy leaves.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Maths.h"
#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Branch.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_049_grenade", [](Plate& p) {
        branch(p,
               {.spine = {{70, 64}, {140, 50}, {220, 58}, {326, 44}},
                .radius = {5, 4, 2.4},
                .leaf = {.shape = shapes::lance, .veins = 7, .petiole = 0.06, .palette = palettes::darkleaf},
                .leaves = {{0.08, 122, 80, 12},
                           {0.2, 72, 66, 11},
                           {0.24, -136, 60, 10},
                           {0.6, -54, 64, 10},
                           {0.76, 104, 70, 11},
                           {0.8, 52, 84, 12},
                           {0.98, 16, 70, 11}}});
        const auto crown = [&](Point at, double degrees, double size) {
            for (const double f : {-46.0, 46.0, -24.0, 24.0, 0.0})
                leaflet(p, polar(at, degrees, -5 * size), polar(at, degrees + f, 27 * size),
                        {.width = 6.4 * size,
                         .palette = palettes::red,
                         .shape = {0.9, 1, 0.8, 0},
                         .contour = 0.7});
        };
        stem(p, {{196, 55}, {186, 70}, {176, 88}}, {3, 3.4}, palettes::bark);
        crown({164, 206}, 98, 1);
        lathe(
            p, {178, 84}, 124,
            +[](double q) { return 10 + 52 * maths::pow(maths::sin(maths::pi * maths::pow(q, 0.92)), 0.6); },
            {.direction = 97,
             .tilt = 0.06,
             .palette = mix(palettes::red, palettes::orange, 0.25),
             .lines = Lines::along});
        ground(p, 216, 352, 306, 3);
        crown({332, 236}, -28, 0.8);
        const Path half = ellipse({288, 254}, 52, 50);
        p.knockOut(half);
        p.flat(half, palettes::red, 0.4);
        p.contour(half, 1.2);
        const Path flesh = ellipse({286, 254}, 45, 43);
        p.flat(flesh, palettes::cream, 0.2);
        p.contour(flesh, 0.6);
        for (int k = 0; k < 5; ++k)
            for (int ring = 0; ring < 3; ++ring)
                for (int j = 0; j <= ring + 1; ++j) {
                    const double a = k * 72.0 + (j - (ring + 1) / 2.0) * 15 + 20;
                    const double r = 13.0 + ring * 11.5;
                    ball(p,
                         Point{286, 254} + Point{maths::cos(maths::radians(a)) * r,
                                                 maths::sin(maths::radians(a)) * r * 0.95},
                         5.2,
                         {.palette = palettes::crimson,
                          .direction = a,
                          .squash = 1.25,
                          .contour = 0.6,
                          .halo = 0.3});
                }
    }};
