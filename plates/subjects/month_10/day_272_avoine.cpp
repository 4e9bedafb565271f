// Oat, Avena sativa: a loose spreading panicle, each big gaping spikelet hanging from its own thread, with a
// bent awn.

#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Cereal.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_272_avoine", [](Plate& p) {
        const Palette ripe = mix(palettes::straw, palettes::gold, 0.25);
        const auto spikelet = [&](Point top, double degrees, double size) {
            p.stroke(spline({polar(top, degrees, size * 0.5), polar(top, degrees - 4, size * 1.1),
                             polar(top, degrees + 14, size * 1.6)}),
                     {.width = 0.8, .swell = 0, .fade = 0.7});
            leaflet(p, polar(top, degrees, size * 0.16), polar(top, degrees, size * 0.92),
                    {.width = size * 0.14, .palette = palettes::leafy, .shape = shapes::elliptic});
            for (const double turn : {-17.0, 17.0})
                leaf(p,
                     {top, polar(top, degrees + turn * 1.5, size * 0.5),
                      polar(top, degrees + turn * 0.8, size)},
                     {.width = size * 0.19,
                      .shape = {0.4, 0.9, 1, 0.72, 0.34, 0},
                      .palette = ripe,
                      .veins = 0,
                      .parallel = true,
                      .contour = 0.75,
                      .midrib = 0.5});
        };
        const Path main{{196, 354}, {204, 270}, {198, 180}, {206, 50}};
        const Path axis = spline(main);
        strapLeaf(p, along(axis, 0.08), -150, 120, 8, 50, palettes::oldleaf);
        strapLeaf(p, along(axis, 0.16), -34, 116, 8, 46, palettes::oldleaf);
        stem(p, main, {3, 2.4, 1.2}, palettes::straw);
        struct Branch {
            double from;
            Point reach;
            double split;
        };
        const Branch branches[] = {{0.36, {-112, -16}, 0.5}, {0.38, {114, -20}, 0.5}, {0.4, {-56, 8}, 0},
                                   {0.41, {58, 4}, 0},       {0.56, {-94, -26}, 0.5}, {0.58, {92, -30}, 0.5},
                                   {0.6, {-40, 2}, 0},       {0.74, {-70, -26}, 0.5}, {0.76, {68, -30}, 0.5},
                                   {0.88, {-42, -22}, 0},    {0.9, {42, -24}, 0},     {0.98, {-14, -22}, 0},
                                   {0.99, {20, -16}, 0}};
        for (const Branch& b : branches) {
            const Point from = along(axis, b.from), end = from + b.reach;
            const Path thread = spline({from, from + Point{b.reach.x * 0.5, b.reach.y - 22},
                                        end + Point{-b.reach.x * 0.06, -14}, end});
            p.stroke(thread, {.width = 1.3, .swell = 0, .fade = 0.2});
            if (b.split > 0) {
                const Point fork = along(thread, b.split), to = fork + Point{b.reach.x * 0.1, 26};
                p.stroke(spline({fork, fork + Point{b.reach.x * 0.1, 4}, to}), {.width = 1, .swell = 0});
                spikelet(to, 90 - b.reach.x * 0.06, 38);
            }
            spikelet(end, 90 - b.reach.x * 0.1, 42);
        }
    }};
