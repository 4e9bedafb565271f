#include "plates/engraver/Face.h"
#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/carpentry/Wood.h"

#include <array>

using namespace tambrelle::engraver;

namespace {

constexpr double middle = 200;
// How far each course of a wall comes towards the viewer, as a share of its drawn length.
constexpr std::array<double, 7> reach{0.98, 0.86, 1.04, 0.90, 1.08, 0.94, 1.12};

// Both walls run from the viewer to the gates.
void walls(Plate& p) {
    for (const double s : {-1.0, 1.0}) {
        const auto at = [s](double x, double y) { return Point{middle + s * x, y}; };
        const Point nearTop = at(136, 160), nearFoot = at(136, 346), farTop = at(46, 192),
                    farFoot = at(46, 280);
        // The viewer's end is left toothed, course by course, where the wall would go on.
        constexpr std::size_t courses = reach.size();
        Path outline{farTop, farFoot};
        for (std::size_t j = courses; j-- > 0;)
            for (const double end : {1.0, 0.0}) {
                const double f = (static_cast<double>(j) + end) / courses;
                outline.push_back(lerp(lerp(farTop, farFoot, f), lerp(nearTop, nearFoot, f), reach[j]));
            }
        face(p, outline,
             {.tone = s < 0 ? 0.56 : 0.30, .palette = palettes::stone, .spacing = 2.4, .gradient = 0.08});
        for (std::size_t j = 0; j < courses; ++j) {
            const double f0 = static_cast<double>(j) / courses, f1 = static_cast<double>(j + 1) / courses;
            const Point a = lerp(nearTop, nearFoot, f1), b = lerp(farTop, farFoot, f1);
            const Point c = lerp(nearTop, nearFoot, f0), d = lerp(farTop, farFoot, f0);
            p.stroke({lerp(b, a, std::min(reach[j], reach[std::min(j + 1, courses - 1)])), b},
                     Pen{.width = 0.8, .swell = 0, .fade = 0, .wobble = 0.3});
            for (int k = 0; k < 5; ++k) {
                const double q = maths::pow((k + 0.5 + 0.5 * static_cast<double>(j % 2)) / 5.2, 0.8);
                if (1 - q > reach[j])
                    continue;
                p.stroke({lerp(a, b, q), lerp(c, d, q)}, Pen{.width = 0.7, .swell = 0, .fade = 0});
            }
        }
        // Coping.
        face(p, {at(138, 138), at(46, 178), at(46, 193), at(135, 161), at(131, 150)},
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
    // Towards the viewer the water ends in tongues, and ripples go on beyond them.
    Path surface = spline({{middle - 148, 354},
                           {middle - 96, 362},
                           {middle - 52, 352},
                           {middle, 364},
                           {middle + 44, 353},
                           {middle + 98, 363},
                           {middle + 148, 354}},
                          10);
    surface = joined(surface, {{middle + 46, 280}, {middle, 298}, {middle - 46, 280}});
    p.knockOut(surface, {.halo = 0, .shade = 0});
    p.flat(surface, palettes::water, 0.42);
    const auto ripple = [&](double y) {
        const double f = (y - 278) / 68;
        const double x = middle + p.random.around(1) * (30 + 106 * f), w = p.random.uniform(8, 22) * f + 4;
        p.stroke(spline({{x - w, y}, {x - w * 0.3, y - 1.2}, {x + w * 0.4, y + 0.6}, {x + w, y}}, 6),
                 Pen{.width = 0.8 * f + 0.35, .swell = 0.5, .fade = 0.5});
    };
    {
        const Plate::Clip clip(p, surface);
        for (int k = 0; k < 78; ++k)
            ripple(p.random.uniform(306, 358));
    }
    for (int k = 0; k < 9; ++k)
        ripple(p.random.uniform(358, 366));
    // Through the sluices of the gates the water shoots down and foams.
    for (const double s : {-1.0, 1.0}) {
        const auto at = [s](double x, double y) { return Point{middle + s * x, y}; };
        const Path fall = joined(spline({at(12, 266), at(13, 280), at(8, 296), at(-2 + 4 * s, 316)}, 8),
                                 spline({at(44, 318), at(38, 294), at(34, 276), at(32, 260)}, 8));
        p.knockOut(fall, {.halo = 0.4, .shade = 0});
        p.flat(fall, palettes::water, 0.12);
        for (int k = 0; k < 9; ++k) {
            const double t = (k + 0.5) / 9;
            p.stroke(spline({lerp(at(12, 266), at(32, 260), t), lerp(at(13, 280), at(36, 277), t),
                             lerp(at(6, 312), at(44, 314), t) + Point{0, p.random.around(5)}},
                            8),
                     Pen{.width = 0.7, .swell = 0.1, .fade = 0.3});
        }
        for (int k = 0; k < 11; ++k) {
            const Point foam = at(4 + 4.2 * k, 316 + p.random.around(4));
            const Path bubble = ellipse(foam, p.random.uniform(4, 7), p.random.uniform(3, 4.5), 20);
            p.knockOut(bubble, {.halo = 0, .shade = 0});
            p.contour(bubble, 0.6);
        }
    }
}

} // namespace

// The lock: a chamber of dressed stone and two mitred gates with their balance beams, water leaking at the
// mitre.
static const Subject subject{"day_320_ecluse", [](Plate& p) {
                                 walls(p);
                                 grassTufts(p, 56, 100, 140, 5);
                                 grassTufts(p, 296, 338, 140, 5);
                                 gates(p);
                                 water(p);
                             }};
