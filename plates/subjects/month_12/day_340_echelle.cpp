#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/carpentry/Wood.h"

using namespace tambrelle::engraver;

// The ladder of the fruit picking: two rails and round rungs, leant against a bough of apples.
static const Subject subject{
    "day_340_echelle", [](Plate& p) {
        ground(p, 70, 250, 306, 6);
        twig(p, {{352, 74}, {300, 92}, {240, 96}, {176, 84}, {120, 88}}, {10, 9, 8, 5.5, 3});
        twig(p, {{290, 94}, {262, 74}, {222, 58}}, {6, 4.5, 2});
        twig(p, {{316, 88}, {312, 116}, {322, 140}}, {5, 3.6, 2});
        LeafForm blade;
        blade.width = 13;
        blade.shape = shapes::ovate;
        blade.margin = serrate(12, 0.1);
        blade.veins = 5;
        const auto spray = [&](Point from, Point to, double sag) {
            leaf(p, {from, lerp(from, to, 0.5) + Point{0, sag}, to}, blade);
        };
        spray({124, 88}, {84, 70}, -4);
        spray({126, 88}, {86, 108}, 4);
        spray({168, 84}, {146, 54}, 0);
        spray({224, 58}, {190, 44}, -4);
        spray({226, 58}, {246, 32}, 0);
        spray({262, 76}, {286, 50}, 0);
        spray({300, 92}, {338, 46}, 4);
        spray({324, 138}, {350, 166}, 6);
        spray({316, 130}, {286, 150}, 4);
        BallForm apple;
        apple.palette = palettes::red;
        apple.squash = 0.9;
        apple.direction = -88;
        const auto fruit = [&](double x, double y, double r) {
            stem(p, {{x + 1, y - r - 16}, {x, y - r * 0.6}}, 1.4, palettes::bark);
            ball(p, {x, y}, r, apple);
            p.stroke(spline({{x - r * 0.3, y - r * 0.72}, {x, y - r * 0.6}, {x + r * 0.3, y - r * 0.74}}),
                     Pen{.width = 1, .swell = 0.4, .fade = 0.4});
            stem(p, {{x + 1.5, y - r - 6}, {x, y - r * 0.62}}, 1.3, palettes::bark);
        };
        fruit(152, 118, 19);
        fruit(266, 134, 20);
        fruit(336, 112, 19);
        ladder(p, {84, 310}, {190, 66}, {158, 316}, {240, 70}, {.rungs = 8, .rail = 6, .rung = 4});
        spray({206, 92}, {226, 122}, 4);
        spray({204, 90}, {176, 110}, 6);
        fruit(219, 120, 20);
        // A windfall.
        fruit(284, 300, 20);
        spray({284, 284}, {314, 276}, -4);
        ground(p, 258, 322, 314, 4);
    }};
