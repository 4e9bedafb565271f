// Cyclamen: a flat round tuber, marbled heart leaves, nodding flowers whose five petals are swept straight up
// past the crook of the stalk.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_147_cyclamen", [](Plate& p) {
        rootlets(p, {200, 346}, 18, 90, 150, 18);
        lathe(p, {200, 348}, 32, {22, 46, 52, 46, 18}, {.palette = palettes::brown});
        const auto heart = [&](const Path& stalk, double degrees, double size) {
            stem(p, stalk, {2.6, 2.2}, palettes::redstem);
            const Point at = stalk.back();
            leaf(p, {at, polar(at, degrees, size * 0.5), polar(at, degrees, size)},
                 {.width = size * 0.5,
                  .shape = {0.1, 0.8, 0.98, 1, 0.95, 0.85, 0.68, 0.4, 0},
                  .margin = crenate(10, 0.05),
                  .palette = palettes::darkleaf,
                  .veins = 5,
                  .coverage = 0.3});
            for (const double s : {-1.0, 1.0})
                for (int k = 0; k < 5; ++k) {
                    const Point c = polar(polar(at, degrees, size * (0.16 + 0.15 * k)), degrees + 90 * s,
                                          size * (0.25 + 0.05 * k - 0.026 * k * k));
                    p.flat(turned(ellipse(c, size * 0.075, size * 0.045), degrees + 24 * s, c),
                           palettes::silver, 0.2);
                }
        };
        heart({{194, 318}, {164, 296}, {142, 268}}, -172, 92);
        heart({{206, 318}, {240, 296}, {260, 268}}, -8, 92);
        heart({{190, 320}, {160, 312}, {146, 312}}, 166, 78);
        heart({{210, 320}, {240, 312}, {256, 312}}, 14, 78);
        const Palette deep = mix(palettes::magenta, palettes::crimson, 0.45);
        const auto swept = [&](const Path& stalk, Point mouth, double size, int side) {
            struct PetalAt {
                double degrees, share, twist;
            };
            for (const PetalAt& s : {PetalAt{-160, 0.8, -12}, PetalAt{-20, 0.8, 12}, PetalAt{-92, 1, 5},
                                     PetalAt{-126, 0.95, -9}, PetalAt{-54, 0.95, 9}}) {
                const Point from = polar(mouth, s.degrees, 4), out = polar(mouth, s.degrees, size * 0.3);
                const Point tip = mouth + Point{direction(s.degrees).x * size * 0.5, -size * s.share};
                leaf(p, {from, out, lerp(out, tip, 0.55) + Point{s.twist * 0.5, 0}, tip},
                     {.width = size * 0.125,
                      .shape = {0.5, 0.72, 0.95, 1, 0.82, 0.45, 0},
                      .palette = mix(palettes::rose, palettes::magenta, 0.55),
                      .veins = 0,
                      .parallel = true,
                      .contour = 0.8,
                      .midrib = 0.5});
            }
            // The crook comes down in front of the petals to the calyx just above the mouth.
            Path crook = stalk;
            crook.push_back(mouth + Point{side * 13.0, -24});
            crook.push_back(mouth + Point{side * 4.0, -30});
            crook.push_back(mouth + Point{0, -14});
            stem(p, crook, {2.8, 2.4, 2}, palettes::redstem);
            for (const double turn : {-36.0, 0.0, 36.0})
                leaflet(p, mouth + Point{0, -16}, polar(mouth + Point{0, -16}, 90 + turn, 13),
                        {.width = 3, .palette = palettes::leaf});
            const Path rim =
                closedSpline({mouth + Point{-11, -4}, mouth + Point{0, -8}, mouth + Point{11, -4},
                              mouth + Point{8, 5}, mouth + Point{0, 8}, mouth + Point{-8, 5}});
            p.knockOut(rim);
            p.flat(rim, deep, 0.66);
            p.contour(rim, 0.8);
        };
        swept({{196, 320}, {170, 250}, {140, 200}, {128, 168}}, {112, 168}, 84, 1);
        swept({{205, 320}, {232, 260}, {264, 214}, {276, 182}}, {292, 184}, 80, -1);
        swept({{201, 320}, {206, 250}, {220, 190}, {218, 148}}, {202, 142}, 98, 1);
    }};
