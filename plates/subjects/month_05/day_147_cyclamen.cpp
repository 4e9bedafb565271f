// Cyclamen: a flat round tuber, marbled heart leaves, nodding flowers whose five petals are swept straight up
// past the crook of the stalk.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/botany/Roots.h"
#include "plates/engraver/botany/RoundLeaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_147_cyclamen", [](Plate& p) {
        rootlets(p, {200, 346}, 18, 90, 150, 18);
        lathe(p, {200, 348}, 32, {22, 46, 52, 46, 18}, {.palette = palettes::brown});
        const auto heart = [&](const Path& stalk, double degrees, double size) {
            stem(p, stalk, {2.6, 2.2}, palettes::redstem);
            roundLeaf(p, stalk.back(), degrees, size,
                      {.breadth = 0.66,
                       .bay = 0.34,
                       .point = 0.6,
                       .palette = palettes::darkleaf,
                       .marbling = 0.75,
                       .teeth = 40});
        };
        heart({{192, 320}, {160, 304}, {138, 292}}, 174, 62);
        heart({{208, 320}, {240, 304}, {262, 292}}, 6, 62);
        heart({{194, 318}, {164, 270}, {138, 240}}, -160, 68);
        heart({{206, 318}, {240, 276}, {262, 246}}, -20, 66);
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
