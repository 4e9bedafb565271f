// Carnation, Dianthus caryophyllus: grey linear leaves in pairs at swollen joints, a long green calyx, a
// double head of fringed petals.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Sheet.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_256_oeillet", [](Plate& p) {
        const Palette grey = mix(palettes::greygreen, palettes::bluegreen, 0.5);
        const auto head = [&](Point at, double degrees, double size) {
            Sheets sheets;
            const Frame frame(at, 34, degrees);
            const int n = 32;
            for (int k = 0; k < n; ++k) {
                const double f = k / (n - 1.0);
                sheets.petal(
                    frame, k * 137.5 + p.random.around(8),
                    {.length = size * (0.6 + 0.4 * f),
                     .width = size * (0.2 + 0.18 * f),
                     .baseAngle = 4 + 34 * f,
                     .tipAngle = -4 + 102 * f,
                     .shape = {0.2, 0.36, 0.7, 1, 0.95, 0.62},
                     .cup = 2,
                     .ruffle = size * 0.05,
                     .ruffleTurns = 11,
                     .radius = 1 + 2 * f,
                     .offset = -size * 0.16 * f,
                     .bending = 1.6,
                     .tone = [f](double u,
                                 double) { return 0.36 * (1 - maths::smooth(0, 0.8, u)) + 0.06 * (1 - f); },
                     .columns = 31},
                    p.random);
            }
            sheets.engrave(p, {.palettes = {Sheets::Style::Tint{palettes::rose,
                                                                mix(palettes::rose, palettes::pink, 0.5)}},
                               .washLift = 0.05,
                               .occlusion = 0.7});
        };
        const auto shoot = [&](const Path& spine, double size) {
            const Path curve = stem(p, spine, {2.8, 2.4}, grey);
            for (int k = 0; k < 4; ++k) {
                const double q = 0.1 + 0.22 * k;
                const Point at = along(curve, q);
                for (const double side : {-1.0, 1.0}) {
                    const double way = angleAlong(curve, q) + side * 30;
                    leaf(p, {at, polar(at, way, 30), polar(at, way + side * 26, 62 - 8 * k)},
                         {.width = 3.2,
                          .shape = shapes::linear,
                          .palette = grey,
                          .veins = 0,
                          .parallel = true,
                          .contour = 0.6});
                }
                ball(p, at, 3.8, {.palette = grey, .lines = Lines::none});
            }
            const double way = angleAlong(curve, 1);
            const Point top = polar(spine.back(), way, size * 0.66);
            lathe(p, polar(spine.back(), way, -2), size * 0.72,
                  {3.4, size * 0.15, size * 0.17, size * 0.17, size * 0.19},
                  {.direction = way, .tilt = 0.1, .palette = palettes::bluegreen, .lines = Lines::along});
            head(top, way, size);
        };
        shoot({{196, 344}, {176, 270}, {132, 186}}, 52);
        shoot({{204, 344}, {226, 268}, {270, 192}}, 52);
        shoot({{200, 346}, {204, 250}, {200, 156}}, 62);
    }};
