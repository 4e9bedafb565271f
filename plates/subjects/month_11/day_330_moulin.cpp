#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/carpentry/Wood.h"

using namespace tambrelle::engraver;

namespace {

void tower(Plate& p) {
    LatheForm masonry;
    masonry.palette = palettes::stone;
    masonry.tilt = 0.1;
    const LatheSurface s = lathe(p, {216, 304}, 132, {60, 54, 50, 46, 44}, masonry);
    const Plate::Clip clip(p, s.outline);
    constexpr int courses = 12, stones = 20;
    for (int j = 0; j < courses; ++j) {
        const double u0 = static_cast<double>(j) / courses, u1 = static_cast<double>(j + 1) / courses;
        p.stroke(s.ring(u1, 0, 180), Pen{.width = 0.55, .wobble = 0.25});
        for (int k = 0; k < stones; ++k) {
            const double a = (k + 0.5 * (j % 2) + p.random.around(0.12)) * 360.0 / stones;
            if (a < 178)
                p.stroke({s.at(u0, a), s.at(u1, a)}, Pen{.width = 0.55, .swell = 0, .fade = 0});
        }
    }
}

void sail(Plate& p, Point hub, double degrees) {
    const Point along = direction(degrees), across = rightOf(along);
    const auto at = [&](double u, double v) { return hub + along * u + across * v; };
    const Path cloth{at(30, 2), at(130, 2), at(130, 34), at(30, 34)};
    p.knockOut(cloth, {.halo = 0.4, .shade = 0.3});
    p.flat(cloth, Colour{0xF5EEDB}, 0.95);
    for (int k = 0; k <= 12; ++k)
        p.stroke({at(30 + 8.33 * k, 2), at(30 + 8.33 * k, 34)},
                 Pen{.width = 1, .swell = 0, .fade = 0, .wobble = 0.05});
    for (const double v : {2.0, 18.0, 34.0})
        p.stroke({at(30, v), at(130, v)}, Pen{.width = 1.1, .swell = 0, .fade = 0, .wobble = 0.05});
    for (int k = 0; k < 12; ++k)
        for (int j = 0; j < 6; ++j)
            p.stroke({at(31.5 + 8.33 * k, 20.2 + 2.4 * j), at(37 + 8.33 * k, 20.2 + 2.4 * j)},
                     Pen{.width = 0.4, .wobble = 0});
    pole(p, {hub, at(132, 0)}, {4, 2.2});
}

} // namespace

// The windmill: a tapering tower of courses, a cap of boards, four lattice sails half covered with cloth.
static const Subject subject{
    "day_330_moulin", [](Plate& p) {
        tower(p);
        const Path door =
            joined({{202, 306}}, joined(spline({{202, 272}, {206, 260}, {216, 255}, {226, 260}, {230, 272}}),
                                        {{230, 307}}));
        face(p, door, {.tone = 0.6, .palette = palettes::wood, .lines = 90, .contour = 1, .halo = 0.6});
        for (const Point at : {Point{246, 224}, Point{238, 262}})
            face(p, {at + Point{-6, -8}, at + Point{6, -8}, at + Point{6, 8}, at + Point{-6, 8}},
                 {.tone = 0.85, .palette = palettes::black, .lines = 90});
        LatheForm cap;
        cap.palette = palettes::wood;
        cap.lines = Lines::along;
        cap.tilt = 0.1;
        cap.tone = 0.12;
        lathe(p, {216, 176}, 56, {52, 46, 36, 20, 2}, cap);
        const Point hub{202, 156};
        for (const double degrees : {-66.0, 24.0, 114.0, 204.0})
            sail(p, hub, degrees);
        ball(p, hub, 7.5, {.palette = palettes::iron});
        ground(p, 110, 330, 302, 6);
        grassTufts(p, 120, 320, 306, 10);
    }};
