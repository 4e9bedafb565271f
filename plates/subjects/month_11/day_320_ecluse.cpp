#include "plates/engraver/Face.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/carpentry/Wood.h"

using namespace tambrelle::engraver;

namespace {

constexpr double middle = 200;

// Both walls run from the viewer to the gates.
void walls(Plate& p) {
    for (const double s : {-1.0, 1.0}) {
        const auto at = [s](double x, double y) { return Point{middle + s * x, y}; };
        const Point nearTop = at(136, 160), nearFoot = at(136, 346), farTop = at(46, 192),
                    farFoot = at(46, 280);
        face(p, {nearTop, farTop, farFoot, nearFoot},
             {.tone = s < 0 ? 0.56 : 0.30, .palette = palettes::stone, .spacing = 2.4, .gradient = 0.08});
        constexpr int courses = 7;
        for (int j = 0; j < courses; ++j) {
            const double f0 = static_cast<double>(j) / courses, f1 = static_cast<double>(j + 1) / courses;
            const Point a = lerp(nearTop, nearFoot, f1), b = lerp(farTop, farFoot, f1);
            const Point c = lerp(nearTop, nearFoot, f0), d = lerp(farTop, farFoot, f0);
            p.stroke({a, b}, Pen{.width = 0.8, .swell = 0, .fade = 0, .wobble = 0.3});
            for (int k = 0; k < 5; ++k) {
                const double q = maths::pow((k + 0.5 + 0.5 * (j % 2)) / 5.2, 0.8);
                p.stroke({lerp(a, b, q), lerp(c, d, q)}, Pen{.width = 0.7, .swell = 0, .fade = 0});
            }
        }
        // Coping.
        face(p, {at(136, 142), at(46, 180), at(46, 194), at(136, 163)},
             {.tone = 0.14, .palette = palettes::stone, .contour = 0.9});
    }
}

void gates(Plate& p) {
    for (const double s : {-1.0, 1.0}) {
        const double outer = middle + s * 48;
        face(p, {{outer, 176}, {middle, 190}, {middle, 296}, {outer, 282}},
             {.tone = s < 0 ? 0.26 : 0.5, .lines = 90, .contour = 0.9, .grain = 0.12, .shade = 0.2});
        for (int k = 1; k < 6; ++k) {
            const double x = middle + s * 8 * k, lift = -14.0 * k / 6;
            p.stroke({{x, 190 + lift}, {x, 296 + lift}}, Pen{.width = 0.7, .swell = 0, .fade = 0});
        }
        for (const double f : {0.05, 0.36, 0.68, 0.95}) {
            const Point a{outer, maths::lerp(176, 282, f)}, b{middle, maths::lerp(190, 296, f)};
            bar(p, a, b, 9, s < 0 ? 0.3 : 0.54);
        }
        bar(p, {outer - s * 42, 190}, {outer - s * 4, 280}, 5, 0.5);
        plank(p, {{middle, 184}, {middle + s * 7, 182}, {middle + s * 7, 297}, {middle, 299}},
              s < 0 ? 0.32 : 0.56);
        plank(p, {{outer - s * 7, 170}, {outer, 168}, {outer, 284}, {outer - s * 7, 286}},
              s < 0 ? 0.36 : 0.58);
        sawnPole(p, {{middle + s * 3, 182}, {middle + s * 70, 158}, {middle + s * 150, 122}}, {6, 7, 9.5});
    }
}

void water(Plate& p) {
    const Path surface{
        {middle - 136, 346}, {middle - 46, 280}, {middle, 298}, {middle + 46, 280}, {middle + 136, 346}};
    p.knockOut(surface, {.halo = 0, .shade = 0});
    p.flat(surface, palettes::water, 0.42);
    const Plate::Clip clip(p, surface);
    for (int k = 0; k < 70; ++k) {
        const double y = p.random.uniform(292, 345), f = (y - 278) / 68;
        const double x = middle + p.random.around(1) * (30 + 106 * f), w = p.random.uniform(8, 22) * f + 4;
        p.stroke(spline({{x - w, y}, {x - w * 0.3, y - 1.2}, {x + w * 0.4, y + 0.6}, {x + w, y}}, 6),
                 Pen{.width = 0.8 * f + 0.35, .swell = 0.5, .fade = 0.5});
    }
    for (int k = 0; k < 9; ++k) { // the leak foams
        const double x = middle + p.random.around(9);
        p.stroke(spline({{x, 288}, {x + p.random.around(3), 302}, {x + p.random.around(8), 316}}, 6),
                 Pen{.width = 0.7, .swell = 0, .fade = 0.7});
    }
}

} // namespace

// The lock: a chamber of dressed stone and two mitred gates with their balance beams, water leaking at the
// mitre.
static const Subject subject{"day_320_ecluse", [](Plate& p) {
                                 walls(p);
                                 gates(p);
                                 water(p);
                             }};
