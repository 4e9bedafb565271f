#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/carpentry/Cooperage.h"
#include "plates/engraver/carpentry/Straw.h"

using namespace tambrelle::engraver;

// The sieve: a hoop of bent wood with a mesh across it, seen from above, grain upon it and passing through.
static const Subject subject{
    "day_120_crible", [](Plate& p) {
        ground(p, 80, 322, 296, 6);
        grains(p, {200, 302}, 86, 9, 150, 3.4);
        for (int k = 0; k < 46; ++k)
            grains(p, {p.random.uniform(122, 278), p.random.uniform(262, 292)}, 1, 1, 1, 3);
        LatheForm hoopForm;
        hoopForm.palette = palettes::wood;
        hoopForm.tilt = 0.56;
        hoopForm.lines = Lines::across;
        const LatheSurface drum = lathe(p, {200, 206}, 60, {122, 124}, hoopForm);
        hoop(p, drum, 0.14, {.breadth = 9, .palette = palettes::wood, .rivets = false});
        hoop(p, drum, 0.90, {.breadth = 9, .palette = palettes::wood, .rivets = false});
        // Where the bent board laps over itself and is sewn.
        p.stroke({drum.at(0.2, 62), drum.at(0.85, 62)}, Pen{.width = 1, .swell = 0, .fade = 0});
        for (const double u : {0.32, 0.44, 0.56, 0.68})
            p.stroke({drum.at(u, 58), drum.at(u, 66)}, Pen{.width = 1.3, .swell = 0.1, .fade = 0.1});
        mouth(p, drum, {.rim = 6, .depth = 0.75});
        const Plate::Clip inside(p, drum.ring(1, 0, 360, -6));
        const Path mesh = drum.ring(0.32, 0, 360, -6);
        p.knockOut(mesh, {.halo = 0, .shade = 0});
        p.flat(mesh, Colour{0xE9DEC3}, 1);
        const Plate::Clip within(p, mesh);
        const Point c = centroid(mesh);
        constexpr int wires = 26;
        for (int k = -wires; k <= wires; ++k) {
            const double q = k * 5.6;
            p.stroke({{c.x + q - 140, c.y - 78}, {c.x + q + 140, c.y + 78}},
                     Pen{.width = 1, .swell = 0, .fade = 0, .wobble = 0.05});
            p.stroke({{c.x + q + 140, c.y - 78}, {c.x + q - 140, c.y + 78}},
                     Pen{.width = 1, .swell = 0, .fade = 0, .wobble = 0.05});
        }
        grains(p, c + Point{-8, 8}, 66, 24, 150, 4);
    }};
