#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Relief.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/carpentry/Straw.h"
#include "plates/engraver/carpentry/Wood.h"

using namespace tambrelle::engraver;

// The hatchery: a nest box filled with straw, eggs in it, one chick just out of its shell.
static const Subject subject{"day_190_couvoir", [](Plate& p) {
    ground(p, 60, 340, 292, 6);
    const Axes box{.origin = {78, 296}, .away = {0.42, -0.36}};
    block(p, box, {0, 96, 0}, {226, 104, 112}, {.tone = 0.06});
    block(p, box, {0, 0, 0}, {9, 100, 76}, {.tone = 0.04});
    straw(p, {212, 226}, 104, 20, {.count = 150, .length = 60, .spread = 40, .radius = 1.3});
    BallForm egg;
    egg.palette = palettes::cream;
    egg.squash = 1.3;
    egg.tone = 0.06;
    const auto lay = [&](double x, double y, double degrees, double r) {
        egg.direction = degrees;
        ball(p, {x, y}, r, egg);
    };
    lay(146, 204, -60, 19);
    lay(180, 212, -110, 20);
    lay(132, 226, -40, 19);
    lay(164, 228, -75, 20);
    // The chick.
    BallForm down;
    down.palette = palettes::yellow;
    down.lines = Lines::none;
    ball(p, {256, 196}, 31, down);
    ball(p, {240, 154}, 22, down);
    const auto fluff = [&](Point c, double r, int count) {
        for (int k = 0; k < count; ++k) {
            const double a = p.random.uniform(0, 360), q = r * std::sqrt(p.random.uniform(0.1, 1.08));
            const Point at = polar(c, a, q);
            const double shade = maths::clamp01(0.4 + dot(at - c, Point{0.63, 0.78}) / r * 0.6);
            p.stroke({at, polar(at, 70 + p.random.around(30), 6)}, Pen{.width = 0.3 + 0.5 * shade, .swell = 0.1, .fade = 0.6});
        }
    };
    fluff({256, 196}, 31, 150);
    fluff({240, 154}, 22, 80);
    const Path wing = closedSpline({{250, 186}, {272, 184}, {288, 202}, {270, 212}, {254, 206}}, 8);
    p.contour(wing, 0.8);
    const Path beak = closedSpline({{219, 152}, {206, 159}, {219, 164}}, 3);
    p.knockOut(beak, {.halo = 0.3});
    p.flat(beak, palettes::orange, 0.5);
    p.contour(beak, 0.8);
    p.stroke({{207, 159}, {219, 158}}, Pen{.width = 0.6});
    p.dot({232, 150}, 3.2);
    p.highlight(ellipse({231, 149}, 1, 1, 12));
    // The broken shell before it.
    Path shell{{208, 224}, {216, 212}, {222, 220}, {230, 209}, {238, 218}, {247, 209}, {253, 219}, {262, 212}, {264, 226}};
    for (const Point q : arc({236, 226}, 28, 24, 0, 180, 20))
        shell.push_back(q);
    ReliefForm calcite;
    calcite.palette = palettes::cream;
    calcite.bevel = 22;
    relief(p, shell, calcite);
    straw(p, {206, 252}, 98, 8, {.count = 60, .length = 54, .spread = 26, .radius = 1.3});
    block(p, box, {217, 0, 0}, {226, 100, 76}, {});
    block(p, box, {0, 0, 0}, {226, 8, 46}, {.tone = 0.02});
    straw(p, {190, 252}, 80, 3, {.count = 16, .length = 44, .spread = 50, .radius = 1.3});
}};
