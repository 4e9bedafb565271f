#include "plates/engraver/Body.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

// The silkworm: naked whitish caterpillar of ringed segments with a little horn behind, dark breathing holes
// along the side, on a toothed mulberry leaf; above it the yellow cocoon in its floss.
static const Subject subject{
    "day_225_ver_a_soie", [](Plate& p) {
        constexpr Palette skin{0xFFFEF6, 0xEEE6D0, 0xA99C80}, silk{0xFFF6C8, 0xF0D988, 0xB08F3E},
            head{0xD8B48C, 0x8E6844, 0x4A3020};
        twig(p, {{20, 76}, {100, 62}, {190, 66}, {300, 44}}, {5.6, 5, 4, 2.4});
        // Mulberry leaves: the large one carries the worm.
        const LeafForm mulberry{.width = 62,
                                .shape = shapes::cordate,
                                .margin = serrate(15, 0.10),
                                .palette = palettes::leaf,
                                .veins = 7,
                                .slant = 0.34};
        LeafForm small = mulberry;
        small.width = 26;
        tube(p, {{252, 54}, {266, 72}, {272, 84}}, {2, 1.6, 1.6}, {});
        leaf(p, {{272, 82}, {286, 108}, {292, 134}, {284, 158}}, small);
        tube(p, {{112, 64}, {78, 100}, {48, 148}}, {2.4, 2, 2}, {});
        leaf(p, {{44, 150}, {110, 168}, {190, 186}, {292, 216}}, mulberry);
        // The worm: eleven rings over the midrib.
        const Path back = spline(
            {{76, 142}, {96, 128}, {116, 132}, {138, 150}, {164, 164}, {194, 172}, {222, 176}, {246, 176}});
        Body worm;
        for (int k = 0; k < 4; ++k) {
            const Point leg = along(back, 0.50 + 0.105 * k);
            worm.chain({{leg.x, leg.y + 10, 8, 7}, {leg.x - 1, leg.y + 21, 9, 5.2}}, {.blend = 3});
        }
        worm.chain({{254, 184, 6, 7}, {260, 194, 7, 5}}, {.blend = 4});
        constexpr int rings = 11;
        for (int k = rings - 1; k >= 0; --k) {
            const double q = (k + 0.5) / rings;
            const Point c = along(back, q);
            const double r = k < 3 ? 15.5 + 0.8 * k : 17.6 - 0.15 * (k - 3) * (k - 3) * 0.6;
            worm.chain({{c.x, c.y, 0, r}}, {.blend = 1.6, .coat = angleAlong(back, q) + 90});
        }
        worm.chain({{68, 144, 2, 9.5}, {65, 147, 2, 9}}, {.blend = 1.5, .palette = 1});
        for (int k = 0; k < 3; ++k)
            worm.chain({{76.0 + 11 * k, 156.0 - 5 * k, 10, 3.6}, {72.0 + 11 * k, 163.0 - 5 * k, 12, 1.4}},
                       {.blend = 2, .palette = 1});
        const Point tail = along(back, 0.93);
        worm.chain({{tail.x, tail.y - 14, 0, 4.4},
                    {tail.x + 5, tail.y - 23, 0, 2.6},
                    {tail.x + 11, tail.y - 29, 0, 0.8}},
                   {.blend = 3});
        Body::Style style;
        style.palettes = {skin, head};
        style.contour = 0.95;
        style.edge = 0.9;
        style.cuts.normal = {0.85, 0.3, 0.35};
        style.cuts.spacing = 2.1;
        style.cuts.from = 0.32;
        worm.engrave(p, style);
        for (int k = 0; k < rings; ++k) {
            const double q = (k + 0.5) / rings;
            const Point c = along(back, q), n = rightOf(direction(angleAlong(back, q)));
            if (k != 1 && k != 2)
                p.ink(ellipse(c + n * 6.5, 1.3, 1.9, 14), sepia, 0.9);
            p.stroke(spline({c - n * 12 + Point{2, 0}, c - n * 4 + Point{4.2, 0}, c + n * 3 + Point{4, 0}}),
                     Pen{.width = 0.5, .swell = 0.4, .fade = 0.6});
        }
        // The marks on the back that look like eyebrows, and the crescents.
        for (const double q : {0.17, 0.43}) {
            const Point c = along(back, q) + Point{3, -9};
            p.stroke(spline({c + Point{-5, 1}, c + Point{0, -2.4}, c + Point{4.4, 1.6}}),
                     Pen{.width = 1.6, .swell = 0.3, .fade = 0.3, .alpha = 0.75});
        }
        p.dot({61, 146}, 1.2);
        p.dot({63.5, 149.5}, 0.9);
        p.stroke(spline({{57.5, 149}, {60, 153}, {64, 155}}), Pen{.width = 0.9});
        // The cocoon in its floss.
        const Point nest{176, 96};
        for (int k = 0; k < 46; ++k) {
            const double a = p.random.uniform(-180, 180);
            const Point from =
                nest + Point{30 * maths::cos(maths::radians(a)), 20 * maths::sin(maths::radians(a))};
            const Point to{nest.x + p.random.around(62), 66 + p.random.around(3)};
            p.stroke(
                spline({from, lerp(from, to, 0.5) + Point{p.random.around(8), p.random.around(5)}, to}),
                Pen{.width = 0.38, .swell = 0.2, .fade = 0.4, .wobble = 0.5, .colour = Colour{0x8A7440}});
        }
        ball(p, nest, 21,
             {.palette = silk,
              .direction = -6,
              .squash = 1.62,
              .spacing = 2.1,
              .coverage = 0.4,
              .lines = Lines::across,
              .contour = 0.9});
        for (int k = 0; k < 40; ++k) {
            const double a = p.random.uniform(0, 360);
            const Point c = nest + Point{26 * p.random.around(1), 15 * p.random.around(1)};
            p.stroke(spline({c + direction(a) * -10, c + direction(a + 90) * 3, c + direction(a) * 10}),
                     Pen{.width = 0.36, .swell = 0.4, .fade = 0.4, .alpha = 0.8});
        }
    }};
