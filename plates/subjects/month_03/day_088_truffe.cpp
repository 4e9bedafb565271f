// Black truffle, Tuber melanosporum: knobbly black balls crusted with angular warts; one cut to show dark
// flesh veined with white.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Maths.h"
#include "plates/engraver/Path.h"
#include "plates/engraver/Relief.h"
#include "plates/engraver/Subject.h"

#include <vector>

using namespace tambrelle::engraver;

static const Subject subject{
    "day_088_truffe", [](Plate& p) {
        ground(p, 70, 340, 292, 6);
        const auto truffle = [&](Point at, double radius) {
            const Palette hue = mix(palettes::black, palettes::earth, 0.3);
            Path rim;
            for (int k = 0; k < 11; ++k)
                rim.push_back(at + direction(k * 360.0 / 11) * (radius * (1 + p.random.around(0.07))));
            const Path outline = closedSpline(rim);
            relief(p, outline,
                   {.palette = hue, .bevel = radius, .hatched = false, .tone = 0.3, .highlight = 0});
            struct Wart {
                double x, y;
            };
            std::vector<Wart> warts;
            const Plate::Clip inside(p, outline);
            for (int ring = 7; ring >= 0; --ring) {
                const int count = ring == 0 ? 1 : ring * 6;
                for (int k = 0; k < count; ++k) {
                    const double a = k * 360.0 / count + ring * 17 + p.random.around(4);
                    const double r = radius * 1.06 * maths::sin(maths::pi / 2 * ring / 7.2);
                    const double size = radius * 0.155 *
                                        (0.5 + 0.5 * maths::cos(maths::pi / 2 * ring / 7.6)) *
                                        (1 + p.random.around(0.15));
                    const Point c = polar(at, a, r);
                    Path wart;
                    for (int j = 0; j < 5; ++j)
                        wart.push_back(c + direction(j * 72.0 + p.random.around(16)) *
                                               (size * (1 + p.random.around(0.14))));
                    const double lit = dot(direction(a), direction(-128)) * ring / 7.0;
                    p.knockOut(wart, {.halo = 0.5, .shade = 0.2});
                    p.flat(wart, hue, 0.5 - 0.5 * lit);
                    p.flat({wart[1], wart[2], c, wart[0]}, hue, 0.72 - 0.4 * lit);
                    p.contour(wart, 0.8);
                    p.stroke({c + Point{-size * 0.4, -size * 0.4}, c + Point{size * 0.2, -size * 0.5}},
                             {.width = 0.8, .colour = hue.light, .alpha = 0.8});
                }
            }
        };
        truffle({140, 216}, 76);
        truffle({262, 146}, 50);
        const Point middle{264, 240};
        const Path cut = closedSpline({{264, 186},
                                       {304, 196},
                                       {324, 228},
                                       {318, 268},
                                       {284, 292},
                                       {240, 290},
                                       {210, 266},
                                       {206, 226},
                                       {228, 194}});
        p.knockOut(cut, {.halo = 1, .shade = 0.4});
        p.flat(cut, mix(palettes::black, palettes::earth, 0.3), 0.7);
        Path flesh;
        for (const Point& at : cut)
            flesh.push_back(lerp(at, middle, 0.07));
        p.flat(flesh, mix(palettes::earth, palettes::plum, 0.35), 0.5);
        p.contour(cut, 1.2);
        const Plate::Clip inside(p, flesh);
        for (int k = 0; k < 26; ++k) {
            const Point from = along(flesh, k / 26.0 + p.random.around(0.02));
            Path vein{from};
            Point at = from;
            double way = angleOf(middle - from) + p.random.around(30);
            for (int j = 0; j < 6; ++j) {
                way += p.random.around(48);
                at = polar(at, way, 10);
                vein.push_back(at);
            }
            p.stroke(spline(vein), {.width = 3.2, .swell = 0, .fade = 0.5});
            p.stroke(spline(vein), {.width = 2.2, .swell = 0, .fade = 0.5, .colour = palettes::cream.light});
        }
    }};
