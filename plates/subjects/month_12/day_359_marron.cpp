// Marron, Castanea sativa: a heap of large glossy brown nuts with pale scars and tufted points, one cut to
// show the cream kernel; no burr.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Relief.h"
#include "plates/engraver/Subject.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_359_marron", [](Plate& p) {
        ground(p, 70, 336, 300, 6);
        const auto marron = [&](Point c, double degrees, double size) {
            const Path outline =
                closedSpline({polar(c, degrees, size * 1.02), polar(c, degrees + 30, size * 0.9),
                              polar(c, degrees + 70, size * 1.06), polar(c, degrees + 112, size * 1.05),
                              polar(c, degrees + 150, size * 0.86), polar(c, degrees + 180, size * 0.78),
                              polar(c, degrees + 210, size * 0.86), polar(c, degrees + 248, size * 1.05),
                              polar(c, degrees + 290, size * 1.06), polar(c, degrees + 330, size * 0.9)});
            const Point tip = polar(c, degrees, size * 0.98);
            for (const double a : {-22.0, 0.0, 22.0})
                p.stroke({tip, polar(tip, degrees + a, size * 0.28)},
                         {.width = 1.5, .swell = 0, .fade = 0.6});
            relief(p, outline,
                   {.palette = palettes::chestnut, .bevel = size * 0.9, .contour = 1, .highlight = 0.24});
            const Plate::Clip within(p, outline);
            const Path scar =
                closedSpline({polar(c, degrees + 120, size * 1.2), polar(c, degrees + 138, size * 0.78),
                              polar(c, degrees + 180, size * 0.5), polar(c, degrees + 222, size * 0.78),
                              polar(c, degrees + 240, size * 1.2), polar(c, degrees + 180, size * 1.2)});
            p.flat(scar, Colour(0xE8D2AA));
            p.contour(scar, 0.8);
            for (int k = 0; k < 14; ++k)
                p.dot(polar(c, degrees + 180 + p.random.around(40), size * p.random.uniform(0.58, 0.8)), 0.8);
            for (const double a : {-34.0, -16.0, 14.0, 32.0})
                p.stroke(
                    spline({polar(c, degrees + a * 0.4, size * 0.9), polar(c, degrees + a * 1.7, size * 0.56),
                            polar(c, degrees + a * 3.1, size * 0.6)}),
                    {.width = 0.7, .colour = Colour(0x3A1A0C)});
        };
        marron({144, 172}, -110, 52);
        marron({248, 166}, -70, 54);
        marron({196, 116}, -84, 50);
        marron({110, 244}, -140, 54);
        marron({290, 240}, -40, 52);
        marron({198, 234}, -96, 60);
        const Path half = closedSpline(
            {{262, 302}, {250, 280}, {262, 260}, {288, 250}, {316, 260}, {328, 282}, {314, 304}, {288, 310}});
        relief(p, half, {.palette = palettes::chestnut, .bevel = 8, .contour = 1});
        const Path kernel = closedSpline(
            {{267, 298}, {257, 281}, {267, 265}, {288, 256}, {311, 265}, {321, 282}, {310, 299}, {288, 304}});
        p.flat(kernel, Colour(0xF7E7BE));
        p.contour(kernel, 0.8);
        p.stroke(spline({{288, 258}, {292, 270}, {286, 284}, {290, 300}}), {.width = 1.4});
        for (const auto& [x, y] : {std::pair{272.0, 276.0}, std::pair{302.0, 274.0}, std::pair{300.0, 290.0},
                                   std::pair{272.0, 290.0}})
            p.stroke(spline({{x, y}, {x + 4, y + 3}, {x + 5, y + 8}}), {.width = 0.7});
    }};
