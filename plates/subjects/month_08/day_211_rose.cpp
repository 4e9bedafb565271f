// Rose: a full double flower of petals at the golden angle, a bud, pinnate serrate leaves, thorns.

#include "plates/engraver/Sheet.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_211_rose", [](Plate& p) {
        const Point o{50, 40};
        const auto at = [o](double x, double y) { return Point{x, y} + o; };
        stem(p, {at(150, 258), at(146, 216), at(151, 176), at(147, 120)}, {3.6, 3.1, 2.9});
        stem(p, {at(149, 212), at(184, 196), at(214, 172), at(228, 146)}, {2, 1.6});
        stem(p, {at(148, 226), at(112, 212), at(80, 204)}, {1.7, 1.2});
        stem(p, {at(150, 238), at(190, 230), at(218, 226)}, {1.7, 1.2});
        struct Blade {
            Point a, b, c;
            double width;
        };
        for (const Blade& b :
             {Blade{{82, 204}, {58, 196}, {28, 208}, 16}, Blade{{102, 209}, {94, 186}, {72, 166}, 13.5},
              Blade{{99, 209}, {90, 230}, {66, 248}, 13.5}, Blade{{216, 226}, {240, 220}, {268, 232}, 15},
              Blade{{196, 230}, {208, 210}, {236, 200}, 12}, Blade{{198, 230}, {210, 246}, {236, 254}, 12}})
            leaf(p, {b.a + o, b.b + o, b.c + o}, {.width = b.width, .margin = serrate(11), .veins = 7});
        struct Thorn {
            Point at;
            double degrees;
        };
        for (const Thorn& t :
             {Thorn{{150, 186}, 15}, Thorn{{147, 214}, 165}, Thorn{{149, 244}, 10}, Thorn{{176, 199}, -50}}) {
            const Point a = t.at + o, e = polar(a, t.degrees, 8.5) + Point{0, 2};
            const Path outline = spline({a + Point{0, -3.8}, lerp(a, e, 0.5) + Point{0, -1}, e,
                                         lerp(a, e, 0.5) + Point{0, 2}, a + Point{0, 4}},
                                        6);
            p.knockOut(outline, {.halo = 0.2, .shade = 0});
            p.flat(outline, palettes::rose, 0.62);
            p.contour(outline, 0.75);
        }
        for (const double a : {70.0, 110.0, 150.0, 30.0, 190.0, -10.0})
            leaflet(p, polar(at(146, 104), a, 30), polar(at(146, 104), a, 82), {.width = 6});
        const double R = 72;
        const int n = 34;
        Sheets head;
        const Frame frame(at(146, 104), 50);
        for (int k = 0; k < n; ++k) {
            const double f = k / (n - 1.0);
            head.petal(
                frame, k * 137.5 + p.random.around(8),
                {.length = R * (0.62 + 0.45 * f),
                 .width = R * (0.20 + 0.42 * maths::pow(f, 0.8)),
                 .baseAngle = maths::lerp(2, 34, maths::pow(f, 1.3)),
                 .tipAngle = maths::lerp(-16, 82, maths::pow(f, 1.25)),
                 .shape = {0.35, 0.8, 1, 1.02, 0.9, 0},
                 .cup = maths::lerp(0.55, 1.5, f),
                 .curl = maths::lerp(8, 46, f),
                 .ruffle = R * 0.018 * f,
                 .ruffleTurns = 4,
                 .radius = R * (0.015 + 0.10 * f),
                 .offset = -R * 0.28 * f,
                 .tone = [f](double u,
                             double) { return 0.42 * (1 - maths::smooth(0, 0.75, u)) + 0.10 * (1 - f); }},
                p.random);
        }
        head.engrave(p, {.palettes = {palettes::rose},
                         .spacing = 1.8,
                         .coverage = 0.44,
                         .contour = 0.8,
                         .washLift = 0.03,
                         .occlusion = 0.7});
        const Point b = at(230, 140);
        leaflet(p, b, at(222, 108), {.width = 4, .bend = -2});
        leaflet(p, b, at(238, 108), {.width = 4, .bend = 2});
        Sheets bud;
        for (int k = 0; k < 7; ++k)
            bud.petal(Frame(at(230, 138), 8), k * 137.5 + 20,
                      {.length = 30 - k * 0.3,
                       .width = 9,
                       .baseAngle = 26 + k * 0.6,
                       .tipAngle = -16,
                       .shape = {0.4, 0.8, 1, 1, 0.8, 0},
                       .cup = 1,
                       .curl = 10,
                       .radius = 1},
                      p.random);
        bud.engrave(p, {.palettes = {palettes::rose}, .spacing = 1.6});
        leaflet(p, b, at(216, 112), {.width = 3.6, .bend = -4});
        leaflet(p, b, at(244, 114), {.width = 3.6, .bend = 4});
        leaflet(p, b, at(231, 110), {.width = 3.6});
    }};
