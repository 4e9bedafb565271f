#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/carpentry/Wood.h"

using namespace tambrelle::engraver;

// The skep: a dome of straw ropes sewn in rounds, a flight hole at its foot, on a wooden stand.
static const Subject subject{
    "day_200_ruche", [](Plate& p) {
        ground(p, 76, 326, 308, 5);
        const Axes stand{.origin = {92, 312}, .away = {0.3, -0.22}};
        for (const double x : {16.0, 176.0})
            block(p, stand, {x, 6, 0}, {x + 16, 40, 16}, {});
        block(p, stand, {-8, -8, 16}, {214, 60, 28}, {});
        const Profile radius{96, 101, 103, 102, 97, 88, 73, 50, 10};
        constexpr int rounds = 15;
        constexpr double height = 186;
        TubeForm coil;
        coil.palette = palettes::straw;
        coil.lines = Lines::none;
        coil.bow = 0;
        coil.contour = 0.85;
        const Point foot{200, 276};
        const Path dome = [&] {
            Path left, right;
            for (int k = 0; k <= 30; ++k) {
                const double u = k / 30.0;
                left.push_back(foot + Point{-radius(u), -height * u});
                right.push_back(foot + Point{radius(u), -height * u});
            }
            return band(left, right);
        }();
        p.knockOut(dome);
        p.flat(dome, palettes::straw, 0.6);
        for (int k = 0; k < rounds; ++k) {
            const double u = (k + 0.5) / rounds, r = radius(u), sag = 0.11 * r;
            const double y = foot.y - height * u;
            Path spine;
            for (int j = 0; j <= 10; ++j) {
                const double a = 180.0 - 18.0 * j;
                spine.push_back(
                    {foot.x + r * maths::cos(maths::radians(a)), y + sag * maths::sin(maths::radians(a))});
            }
            constexpr double thick = height / rounds * 0.57;
            tube(p, spine, {thick * 0.85, thick, thick, thick * 0.85}, coil);
            const auto stitches = static_cast<int>(r * 0.62);
            for (int j = 0; j < stitches; ++j) {
                const double a = maths::radians(180.0 - 180.0 * (j + 0.5 + p.random.around(0.2)) / stitches);
                const Point at{foot.x + r * maths::cos(a), y + sag * maths::sin(a)};
                const double dark = 0.35 + 0.65 * maths::smooth(-0.3, 1, maths::cos(a));
                p.stroke(spline({at + Point{-1.6, -thick * 0.85}, at + Point{1.2, 0},
                                 at + Point{0.2, thick * 0.85}},
                                5),
                         Pen{.width = 0.5 + 0.7 * dark, .swell = 0.2, .fade = 0.2, .wobble = 0});
                if (dark > 0.7)
                    p.stroke(
                        spline({at + Point{0.8, -thick * 0.7}, at + Point{3, 0}, at + Point{2, thick * 0.7}},
                               5),
                        Pen{.width = 0.5 * dark, .swell = 0.2, .fade = 0.2, .wobble = 0});
            }
        }
        ball(p, {200, 88}, 9, {.palette = palettes::wood});
        const Path door =
            joined({{178, 287}}, joined(spline({{178, 268}, {186, 252}, {200, 247}, {214, 252}, {222, 268}}),
                                        {{222, 286}, {200, 289}}));
        p.knockOut(door, {.halo = 0.6, .shade = 0});
        p.flat(door, palettes::darkwood, 0.95);
        p.ink(door, sepia, 0.6);
        p.contour(door, 1.2);
        // Bees at the door.
        const auto bee = [&p](Point at, double degrees) {
            for (const double side : {-55.0, 55.0}) {
                const Path wing = turned(ellipse(at + direction(degrees + 180 + side) * 5, 5.5, 2.4, 20),
                                         degrees + 180 + side, at + direction(degrees + 180 + side) * 5);
                p.knockOut(wing, {.halo = 0.3, .shade = 0});
                p.contour(wing, 0.6);
            }
            const Path body = turned(ellipse(at, 6, 3.2, 20), degrees, at);
            p.knockOut(body, {.halo = 0.2});
            p.flat(body, palettes::ginger, 0.6);
            p.contour(body, 0.8);
            for (const double q : {-3.0, 0.0, 3.0})
                p.stroke({at + rotate({q, -3}, degrees), at + rotate({q, 3}, degrees)},
                         Pen{.width = 1.2, .swell = 0, .fade = 0});
        };
        bee({92, 116}, 30);
        bee({318, 150}, 150);
        bee({300, 92}, 160);
    }};
