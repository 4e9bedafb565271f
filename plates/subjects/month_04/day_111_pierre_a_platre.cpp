#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Vessel.h"
#include "plates/engraver/minerals/Crystal.h"
#include "plates/engraver/minerals/Heap.h"

using namespace tambrelle::engraver;

// Gypsum: two clear tablets grown together as a swallow's tail; beside it a bowl of the plaster burnt from
// it.
static const Subject subject{
    "day_111_pierre_a_platre", [](Plate& p) {
        ground(p, 66, 336, 294, 6);
        const Palette gypsum{0xFFFDF4, 0xEADFC2, 0xA8966C};
        stone(p,
              {{66, 298}, {80, 274}, {112, 262}, {150, 258}, {190, 268}, {206, 296}, {176, 310}, {110, 312}},
              {.palette = palettes::stone, .seed = 14, .rough = 1.4, .depth = 22, .ragged = 2, .tone = 0.08});
        // One half of the twin: a lozenge tablet with bevelled edges, from the seam outwards.
        const auto half = [&](double side) {
            std::vector<Vector3> corners;
            const auto rim = [&](double x, double y, double inset) {
                corners.push_back({side * x, y, 0});
                for (const double face : {-1.0, 1.0})
                    corners.push_back(
                        {side * (x > 0 ? x - inset : 0.0), y + (y < 0 ? inset : -inset) * 0.8, face * 0.2});
            };
            rim(0, 1.35, 0.10);
            rim(0, -0.70, 0.12);
            rim(0.64, -1.36, 0.16);
            rim(0.80, -0.95, 0.16);
            rim(0.64, 0.25, 0.16);
            return crystal(p, corners, {134, 182},
                           {.palette = gypsum,
                            .scale = 88,
                            .turn = {7, 0, 4},
                            .tone = side < 0 ? -0.06 : 0.14,
                            .contrast = 1.2,
                            .spacing = 2.4,
                            .clear = 0.3});
        };
        half(1);
        half(-1);
        for (const double side : {-1.0, 1.0}) // cleavage along the tablets
            for (int k = 0; k < 5; ++k) {
                const double x = 134 + side * (9 + 9 * k), y = 134 - 6.5 * k;
                p.stroke({{x, y}, {x - 3, y + 44 + p.random.around(14)}},
                         {.width = 0.5, .swell = 0.2, .fade = 0.7, .alpha = 0.8});
            }
        stone(
            p, {{92, 300}, {104, 278}, {140, 272}, {172, 282}, {180, 304}, {136, 314}},
            {.palette = palettes::stone, .seed = 9, .rough = 1.2, .depth = 14, .ragged = 1.6, .tone = 0.08});
        const LatheSurface bowl =
            lathe(p, {264, 288}, 62, {24, 44, 58, 65, 67}, {.tilt = 0.36, .palette = palettes::terracotta});
        mouth(p, bowl, {.rim = 5, .palette = palettes::terracotta, .liquid = palettes::chalk, .level = 0.04});
        const Point level = centroid(bowl.ring(1));
        heap(p, level + Point{0, 12}, 54, 42, 0.5,
             {.palette = palettes::whiteflower,
              .seed = 3,
              .rough = 0.7,
              .grain = 12,
              .depth = 26,
              .ragged = 0.8,
              .shade = 0.1});
        const Path front = band(bowl.ring(1, 0, 180), bowl.ring(1, 0, 180, -5));
        p.knockOut(front, {.halo = 0.2, .shade = 0});
        p.flat(front, palettes::terracotta, 0.16);
        p.contour(front, 0.7);
    }};
