#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/carpentry/Wood.h"

using namespace tambrelle::engraver;

// The harrow: a lattice of squared timber set with rows of iron teeth that point down, a chain to draw it.
static const Subject subject{
    "day_050_herse", [](Plate& p) {
        const Axes field{.origin = {62, 258}, .right = {0.98, 0.05}, .away = {0.52, -0.66}};
        constexpr double bars[] = {0, 46, 92, 138};
        constexpr double length = 200;
        TubeForm iron;
        iron.palette = palettes::iron;
        iron.spacing = 1.6;
        iron.tone = 0.12;
        for (int b = 3; b >= 0; --b) {
            const double y = bars[b];
            for (int k = 0; k < 5; ++k) {
                const double x = 18 + k * 41;
                tube(p,
                     {field.at({x, y + 6, 2}), field.at({x - 3, y + 4, -22}), field.at({x - 9, y + 2, -44})},
                     {5, 4.4, 0.6}, iron);
            }
            block(p, field, {0, y, 0}, {length, y + 14, 14}, {});
        }
        for (int k = 4; k >= 0; --k) {
            const double x = 10 + k * 41;
            block(p, field, {x, -4, 12}, {x + 15, 156, 22}, {});
        }
        for (int b = 0; b < 4; ++b) // the teeth's heads come through the timber
            for (int k = 0; k < 5; ++k) {
                const Point head = field.at({17.5 + k * 41, bars[b] + 6, 22});
                const Path nut = ellipse(head, 4.4, 3.4, 20);
                p.knockOut(nut, {.halo = 0.2});
                p.flat(nut, palettes::iron, 0.45);
                p.contour(nut, 0.8);
            }
        ground(p, 50, 330, 284, 7);
    }};
