// Stone pine, Pinus pinea: a broad round cone of few great shields, gaping on its nuts, and the hard dark
// nuts and pale kernels; needles long, in pairs.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Path.h"
#include "plates/engraver/Relief.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Conifer.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_086_pignon", [](Plate& p) {
        ground(p, 60, 350, 318, 5);
        needleTufts(p, {{60, 120}, {120, 94}, {176, 78}, {230, 72}}, 6, 12, 78, palettes::leaf, 110);
        tube(p, {{60, 120}, {120, 94}, {176, 78}, {230, 72}}, {6, 5.4, 4.4, 3},
             {.palette = palettes::bark, .rough = 0.2});
        const Point heart{180, 232};
        const double rx = 84, ry = 92;
        ball(p, heart, rx * 0.97, {.palette = palettes::earth, .squash = ry / rx, .tone = 0.4});
        const Palette hue = mix(palettes::brown, palettes::tan, 0.45);
        // Shields from the rim inwards, in rows that stand between one another.
        struct Shield {
            double x, y;
        };
        std::vector<Shield> shields;
        for (int row = -4; row <= 4; ++row)
            for (int k = -3; k <= 3; ++k) {
                const double y = maths::sin(maths::radians(row * 17.5)), place = k + (row % 2 == 0 ? 0 : 0.5);
                const double reach = std::sqrt(1 - y * y * 0.96);
                if (std::fabs(place) <= 2.6 && std::fabs(place) * 0.3 <= reach)
                    shields.push_back({maths::sin(maths::radians(place * 33)) * reach, y});
            }
        std::stable_sort(shields.begin(), shields.end(), [](const Shield& a, const Shield& b) {
            return a.x * a.x + a.y * a.y > b.x * b.x + b.y * b.y;
        });
        for (const Shield& s : shields) {
            const Point c = heart + Point{s.x * rx, s.y * ry};
            const double sx = 25 * std::sqrt(std::max(0.14, 1 - s.x * s.x - 0.5 * s.y * s.y)),
                         sy = 18 * std::sqrt(std::max(0.3, 1 - s.y * s.y * 0.8));
            const Path shield = closedSpline({c + Point{-sx, 0}, c + Point{-sx * 0.5, -sy * 0.86},
                                              c + Point{0, -sy}, c + Point{sx * 0.5, -sy * 0.86},
                                              c + Point{sx, 0}, c + Point{sx * 0.5, sy * 0.8},
                                              c + Point{0, sy}, c + Point{-sx * 0.5, sy * 0.8}},
                                             5);
            relief(p, shield,
                   {.palette = hue,
                    .bevel = 13,
                    .spacing = 2.4,
                    .coverage = 0.4,
                    .tone = 0.04 + 0.14 * (s.x + s.y),
                    .contour = 1});
            p.stroke({c + Point{-sx * 0.8, 0}, c + Point{0, 1}, c + Point{sx * 0.8, 0}}, {.width = 0.9});
            const Path boss = ellipse(c, sx * 0.24, sy * 0.26, 20);
            p.flat(boss, palettes::tan, 0.2);
            p.contour(boss, 0.8);
        }
        const auto kernel = [&](Point at, double degrees, double size, const Palette& palette) {
            lathe(p, polar(at, degrees, -17 * size), 36 * size,
                  {3 * size, 9 * size, 11 * size, 9.6 * size, 5.6 * size, 0.8},
                  {.direction = degrees, .tilt = 0.1, .palette = palette, .lines = Lines::along});
        };
        kernel({300, 290}, -160, 1.2, palettes::darkwood);
        kernel({336, 282}, -50, 1.2, palettes::darkwood);
        kernel({284, 318}, 10, 1.2, palettes::darkwood);
        kernel({326, 318}, 160, 1.1, palettes::cream);
        kernel({86, 320}, -20, 1.1, palettes::cream);
    }};
