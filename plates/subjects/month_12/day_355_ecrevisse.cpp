#include "plates/engraver/Lathe.h"
#include "plates/engraver/Relief.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"

using namespace tambrelle::engraver;

// The crayfish from above: two great claws, four pairs of walking legs, long antennae, carapace with its
// cervical groove and pointed rostrum, six rings of the tail and the fan of five blades.
static const Subject subject{
    "day_355_ecrevisse", [](Plate& p) {
        constexpr double cx = 150;
        constexpr Palette shell = palettes::cray;
        const TubeForm limb{.palette = shell, .spacing = 1.6, .tone = 0.1};
        ReliefForm plateForm;
        plateForm.palette = shell;
        plateForm.bevel = 9;
        plateForm.heightScale = 0.8;
        plateForm.spacing = 1.9;
        plateForm.shade = 0.25;
        const auto side = [](double s) { return [s](double x, double y) { return Point{cx + s * x, y}; }; };
        for (const double s : {-1.0, 1.0}) {
            const auto at = side(s);
            p.stroke(spline({at(7, 84), at(22, 54), at(58, 30), at(98, 34), at(122, 64)}),
                     Pen{.width = 1.7, .swell = 0, .fade = 0.95});
            p.stroke(spline({at(3, 80), at(7, 58), at(20, 40)}), Pen{.width = 1.2, .swell = 0, .fade = 0.95});
            p.stroke(spline({at(2, 80), at(2, 60), at(8, 38)}), Pen{.width = 1.1, .swell = 0, .fade = 0.95});
            constexpr double legs[4][5] = {{112, 46, 104, 82, 128},
                                           {122, 52, 122, 86, 156},
                                           {132, 50, 142, 80, 184},
                                           {141, 42, 160, 64, 208}};
            for (const auto& leg : legs) {
                tube(p, {at(14, leg[0]), at(leg[1] * 0.6, (leg[0] + leg[2]) / 2 - 7), at(leg[1], leg[2] - 4)},
                     {3.8, 3.4, 3.0}, limb);
                tube(p,
                     {at(leg[1], leg[2] - 4), at((leg[1] + leg[3]) / 2 + 5, (leg[2] + leg[4]) / 2 - 5),
                      at(leg[3], leg[4])},
                     {3.0, 2.4, 0.6}, limb);
            }
            tube(p, {at(18, 106), at(36, 96), at(48, 86)}, {5.4, 6.6, 6.6}, limb);
            tube(p, {at(47, 88), at(57, 79), at(64, 72)}, {6.2, 8.6, 7}, limb);
            // Claw: the moving finger first, then palm and fixed finger in one.
            relief(p,
                   closedSpline({at(58, 58), at(50, 46), at(47, 30), at(52, 14), at(56, 12), at(56, 28),
                                 at(60, 42), at(68, 54)},
                                6),
                   plateForm);
            relief(p,
                   closedSpline({at(58, 72), at(54, 60), at(62, 48), at(67, 36), at(67, 22), at(72, 8),
                                 at(77, 7), at(84, 24), at(86, 44), at(80, 64), at(70, 76)},
                                6),
                   plateForm);
            for (int k = 0; k < 5; ++k) {
                p.dot(at(66.5 - 0.3 * k, 22 + 5.4 * k), 1.0);
                p.dot(at(56.0 + 0.5 * k, 20 + 5.4 * k), 0.9);
            }
            for (int k = 0; k < 22; ++k) {
                const Point c = at(70 + p.random.around(8), p.random.uniform(34, 68));
                p.stroke(spline({c, c + Point{1, 0.5}, c + Point{2, 0}}, 4), Pen{.width = 0.7});
            }
        }
        // Tail fan.
        for (const double degrees : {148.0, 32.0, 122.0, 58.0, 90.0}) {
            const Point base = Point{cx, 208} + Point{maths::cos(maths::radians(degrees)) * 7, 0};
            const double w = degrees == 90 ? 12 : 12.5, size = degrees == 90 ? 38 : 42;
            const Point along = direction(degrees), n = rightOf(along);
            const auto at = [&](double u, double v) { return base + along * (u * size) + n * (v * w); };
            relief(p,
                   closedSpline({at(0, -0.45), at(0.45, -0.95), at(0.85, -0.95), at(1.02, -0.4), at(1.05, 0),
                                 at(1.02, 0.4), at(0.85, 0.95), at(0.45, 0.95), at(0, 0.45)},
                                6),
                   plateForm);
            for (int k = -3; k <= 3; ++k)
                p.stroke({at(0.25, 0.16 * k), at(0.6, 0.24 * k), at(0.98, 0.26 * k)},
                         Pen{.width = 0.55, .swell = 0.2, .fade = 0.3});
            for (int k = -5; k <= 5; ++k)
                p.stroke({at(1.0 - 0.006 * k * k, 0.17 * k), at(1.12 - 0.006 * k * k, 0.2 * k)},
                         Pen{.width = 0.5, .swell = 0, .fade = 0.8});
        }
        // Abdomen, last ring first.
        for (int k = 5; k >= 0; --k) {
            const double y = 152 + k * 9.6, r = 21.5 - k * 1.5;
            for (const double s : {-1.0, 1.0}) {
                const auto at = side(s);
                const Path spur = {at(r - 4, y - 3), at(r + 4.5, y + 5), at(r + 1, y + 13), at(r - 7, y + 9)};
                p.knockOut(spur, {.halo = 0.3});
                p.flat(spur, shell, s < 0 ? 0.5 : 0.75);
                p.contour(spur, 0.7);
            }
            LatheForm ring;
            ring.palette = shell;
            ring.tilt = 0.16;
            ring.spacing = 1.8;
            ring.tone = 0.03;
            ring.shade = 0.45;
            lathe(p, {cx, y + 13}, 15, {r * 0.92, r, r * 1.02, r * 0.98, r * 0.9}, ring);
        }
        LatheForm carapace;
        carapace.palette = shell;
        carapace.tilt = 0.05;
        carapace.spacing = 1.8;
        lathe(p, {cx, 158}, 86, {16, 22, 25.5, 26, 24.5, 22, 18.5, 14, 9.5, 4.5, 0.4}, carapace);
        p.stroke(spline({{cx - 24, 126}, {cx - 13, 133}, {cx, 136}, {cx + 13, 133}, {cx + 24, 126}}),
                 Pen{.width = 1.5, .swell = 0.2, .fade = 0.2});
        for (const double s : {-1.0, 1.0}) {
            const auto at = side(s);
            p.stroke(spline({at(3, 136), at(4, 147), at(3, 157)}), Pen{.width = 0.8});
            p.stroke(spline({at(3, 114), at(6, 100), at(2, 80)}), Pen{.width = 0.85});
            ball(p, at(11.5, 88), 4.2, {.palette = palettes::black, .tone = 0.3, .highlight = 0.06});
        }
        for (int k = 0; k < 64; ++k) {
            const Point c{cx + p.random.around(19), p.random.uniform(102, 155)};
            p.stroke(spline({c, c + Point{0.8, 0.5}, c + Point{1.6, 0}}, 4), Pen{.width = 0.6});
        }
    }};
