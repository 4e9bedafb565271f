// Cypress, Cupressus sempervirens: a dark column of a tree; a twig of tiny scales with globe cones of shield
// plates.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Path.h"
#include "plates/engraver/Relief.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/ColumnTree.h"
#include "plates/engraver/botany/Conifer.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_077_cypres", [](Plate& p) {
        columnTree(p, {110, 336}, {.height = 290, .crown = {18, 30, 34, 33, 29, 20, 4}});
        ground(p, 60, 166, 336, 4);
        const Path bough{{184, 318}, {230, 240}, {270, 160}, {306, 64}};
        scaleTwig(p, bough, 66, 12, 2.6, palettes::darkleaf);
        tube(p, bough, {5, 4, 3, 1}, {.palette = palettes::bark, .rough = 0.1});
        const Path way = spline(bough);
        const auto globe = [&](Point from, Point at, double radius) {
            stem(p, {from, lerp(from, at, 0.5) + Point{0, -3}, at}, {3.2, 3}, palettes::bark);
            const Palette hue = mix(palettes::brown, palettes::greygreen, 0.4);
            ball(p, at, radius, {.palette = hue, .tone = 0.24, .lines = Lines::none});
            struct Shield {
                double x, y, size;
            };
            // Shields meet edge to edge; a point stands in the middle of each.
            for (const Shield& s :
                 {Shield{-0.58, -0.56, 0.36}, Shield{0.1, -0.7, 0.38}, Shield{0.68, -0.36, 0.34},
                  Shield{-0.74, 0.14, 0.34}, Shield{-0.06, -0.02, 0.46}, Shield{0.66, 0.3, 0.36},
                  Shield{-0.38, 0.66, 0.36}, Shield{0.26, 0.72, 0.36}}) {
                const Point c = at + Point{s.x, s.y} * radius;
                Path shield;
                for (int k = 0; k < 6; ++k) {
                    const Point d = direction(k * 60.0 + 20);
                    shield.push_back(c + Point{d.x * (1.04 - 0.34 * std::fabs(s.x)),
                                               d.y * (1.04 - 0.34 * std::fabs(s.y))} *
                                             (s.size * radius));
                }
                const Path outline = resample(joined(shield, {shield.front()}), 42);
                relief(p, outline,
                       {.palette = hue,
                        .bevel = s.size * radius * 0.5,
                        .hatched = false,
                        .tone = 0.02 + 0.14 * (s.x + s.y),
                        .contour = 0.9,
                        .shade = 0.15});
                p.stroke(spline({c + Point{-5, -1}, c + Point{0, 1.5}, c + Point{5, -1}}), {.width = 1});
                p.stroke({c, c + Point{1, 5}}, {.width = 1.6, .swell = 0});
            }
        };
        globe(along(way, 0.16), {264, 296}, 37);
        globe(along(way, 0.5), {318, 214}, 34);
    }};
