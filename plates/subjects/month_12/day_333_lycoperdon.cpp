// Puffball, Lycoperdon perlatum: studded white clubs without cap or gills, one old and puffing brown spores
// from a hole, one cut through.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_333_lycoperdon", [](Plate& p) {
        ground(p, 78, 334, 300, 6);
        grassTufts(p, 90, 330, 302, 10);
        for (int k = 0; k < 70; ++k) {
            const double rise = p.random.uniform(0, 1);
            p.dot({276 + rise * 18 + p.random.around(8 + 30 * rise), 174 - rise * 84},
                  p.random.uniform(0.7, 1.7), Colour(0x8A6A40));
        }
        const auto club = [&](Point foot, double size, const Palette& palette, bool open) {
            const LatheSurface s =
                lathe(p, foot, size * 2.1,
                      {size * 0.42, size * 0.44, size * 0.5, size * 0.62, size * 0.82, size * 0.96, size,
                       size * 0.97, size * 0.87, size * 0.66, size * 0.12},
                      {.tilt = 0.22,
                       .palette = palette,
                       .lines = Lines::across,
                       .coverage = 0.32,
                       .hatchFrom = 0.32});
            for (int row = 0; row < 11; ++row)
                for (int k = 0; k < 26; ++k) {
                    const double u = 0.34 + row * 0.058, angle = k * 13.85 + (row % 2) * 7;
                    if (s.facing(u, angle) < 0.15 || (open && u > 0.92))
                        continue;
                    const Point at = s.at(u, angle);
                    p.stroke({at + Point{-1.4, 1.4}, at + Point{-0.2, -2}, at + Point{1.5, 1.2}},
                             {.width = 0.75, .swell = 0, .fade = 0.2});
                }
            if (open) {
                const Path hole = closedSpline(s.ring(0.96));
                p.flat(hole, Colour(0x5A3E24));
                p.contour(hole, 0.9);
            }
        };
        club({274, 298}, 58, palettes::fawn, true);
        club({146, 304}, 66, palettes::whiteflower, false);
        lathe(p, {216, 330}, 60, {14, 17, 24, 33, 36, 28, 4}, {.tilt = 0.1, .palette = palettes::fawn});
        const Path cut = closedSpline({{203, 329},
                                       {200, 312},
                                       {186, 296},
                                       {184, 284},
                                       {196, 273},
                                       {216, 270},
                                       {236, 273},
                                       {248, 284},
                                       {246, 296},
                                       {232, 312},
                                       {229, 329},
                                       {216, 332}});
        p.flat(cut, Colour(0xFFFDF2));
        p.contour(cut, 0.8);
        const Path spores = closedSpline(
            {{192, 288}, {202, 278}, {216, 275}, {230, 278}, {240, 288}, {230, 300}, {216, 304}, {202, 300}});
        p.flat(spores, Colour(0xD9C79A));
        for (int k = 0; k < 120; ++k)
            p.dot({216 + p.random.around(20), 289 + p.random.around(11)}, 0.6);
    }};
