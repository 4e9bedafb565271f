// Cypress, Cupressus sempervirens: a dark column of a tree; twigs of tiny scales, globe cones of shield
// plates.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Path.h"
#include "plates/engraver/Relief.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Conifer.h"
#include "plates/engraver/botany/Habit.h"

#include <cmath>

using namespace tambrelle::engraver;

static const Subject subject{
    "day_077_cypres", [](Plate& p) {
        treeHabit(p, {110, 326},
                  {.height = 258,
                   .crown = {16, 28, 32, 30, 26, 18, 4},
                   .bole = 0.07,
                   .trunk = 6,
                   .palette = palettes::darkleaf,
                   .clump = 0.42});
        ground(p, 70, 150, 326, 3);
        scaleTwig(p, {{176, 250}, {222, 200}, {262, 140}, {300, 70}}, 62, 12, 2.4, palettes::darkleaf);
        tube(p, {{176, 250}, {222, 200}, {262, 140}}, {4.6, 3.6, 2},
             {.palette = palettes::bark, .rough = 0.1});
        const auto globe = [&](Point at, double radius) {
            stem(p, {at + Point{-radius * 0.2, -radius - 14}, at + Point{0, -radius * 0.8}}, {2.6, 3},
                 palettes::bark);
            const Palette hue = mix(palettes::brown, palettes::greygreen, 0.35);
            ball(p, at, radius, {.palette = hue, .tone = 0.1, .lines = Lines::none});
            struct Plate5 {
                double x, y, size;
            };
            for (const Plate5& s :
                 {Plate5{-0.62, -0.5, 0.34}, Plate5{0.1, -0.66, 0.36}, Plate5{0.68, -0.32, 0.3},
                  Plate5{-0.72, 0.2, 0.32}, Plate5{-0.02, 0.04, 0.42}, Plate5{0.68, 0.38, 0.32},
                  Plate5{-0.34, 0.7, 0.34}, Plate5{0.3, 0.74, 0.32}}) {
                const Point c = at + Point{s.x, s.y} * radius;
                Path shield;
                for (int k = 0; k < 5; ++k)
                    shield.push_back(
                        c +
                        Point{direction(k * 72.0 + 20).x * s.size * radius * (1.02 - 0.3 * std::fabs(s.x)),
                              direction(k * 72.0 + 20).y * s.size * radius * (1.02 - 0.3 * std::fabs(s.y))});
                const Path round = closedSpline(shield, 8);
                p.knockOut(round, {.halo = 0.6, .shade = 0.2});
                relief(p, round,
                       {.palette = hue,
                        .bevel = s.size * radius,
                        .tone = 0.04 + 0.12 * (s.x + s.y),
                        .contour = 0.8,
                        .shade = 0.2});
                p.stroke({c, c + Point{2, 4}}, {.width = 1.6});
            }
        };
        globe({236, 262}, 38);
        globe({304, 214}, 36);
    }};
