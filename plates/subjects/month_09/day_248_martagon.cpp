// Martagon lily, Lilium martagon: leaves in whorls, nodding pink-purple flowers with spotted tepals rolled
// right back, long stamens.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_248_martagon", [](Plate& p) {
        tube(p, {{200, 346}, {201, 230}, {198, 120}, {202, 62}}, {4.2, 3.4, 2.4, 1.6},
             {.palette = mix(palettes::stem, palettes::redstem, 0.4)});
        for (const double y : {306.0, 240.0})
            for (const double a : {168.0, 12.0, -158.0, -22.0, 152.0, 28.0, -132.0, -48.0}) {
                const double reach = (y > 280 ? 104 : 90) * (std::fabs(std::fabs(a) - 90) > 60 ? 1 : 0.84);
                const Point base{200, y};
                leaf(p, {base, polar(base, a, reach * 0.5) + Point{0, -6}, polar(base, a, reach)},
                     {.width = 11.5, .shape = shapes::lance, .veins = 0, .parallel = true});
            }
        struct Bloom {
            Point from, at;
            double size;
        };
        const FlowerForm cap{
            .petals = 6,
            .length = 44,
            .width = 9.5,
            .baseAngle = 60,
            .tipAngle = 218,
            .shape = {0.5, 0.9, 1, 0.9, 0.6, 0},
            .palette = mix(palettes::rose, palettes::magenta, 0.4),
            .cup = 1.9,
            .tilt = 14,
            .marking =
                [](double u, double v) {
                    return 0.5 * (maths::cos(u * 44) * maths::cos(v * 9 + u * 30) > 0.55 ? 1 : 0) + 0.05;
                },
            .stamens = 6,
            .stamenLength = 0.95,
            .antherPalette = palettes::brown};
        for (const Bloom& b : {Bloom{{201, 82}, {242, 62}, 0.8}, Bloom{{200, 106}, {148, 92}, 0.92},
                               Bloom{{199, 130}, {266, 126}, 1}, Bloom{{199, 158}, {134, 164}, 1.05}}) {
            stem(p,
                 {b.from, lerp(b.from, b.at, 0.6) + Point{0, -14}, b.at + Point{0, -2}, b.at + Point{0, 8}},
                 {1.8, 1.5});
            flower(p, b.at + Point{0, 8}, 92, cap, b.size);
        }
        tube(p, {{202, 66}, {196, 46}, {186, 44}, {182, 64}}, {1.4, 1.8, 4.4, 2},
             {.palette = palettes::pink, .lines = Lines::along});
    }};
