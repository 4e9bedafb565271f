#include "plates/engraver/Body.h"
#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Relief.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/carpentry/Straw.h"
#include "plates/engraver/carpentry/Wood.h"

using namespace tambrelle::engraver;

// The hatchery: a nest box filled with straw, eggs in it, one chick just out of its shell.
static const Subject subject{
    "day_190_couvoir", [](Plate& p) {
        ground(p, 60, 340, 292, 6);
        const Axes box{.origin = {78, 296}, .away = {0.42, -0.36}};
        block(p, box, {0, 96, 0}, {226, 104, 134}, {.tone = 0.06});
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
        Body chick;
        chick.chain({{240, 206, 0, 27}, {262, 204, 0, 30}, {284, 192, 0, 15}, {294, 184, 0, 5}},
                    {.blend = 14, .coat = 10});
        chick.chain({{246, 186, 4, 18}, {240, 154, 6, 25}, {238, 152, 7, 25}}, {.blend = 6, .coat = 70});
        chick.chain({{252, 200, 26, 9}, {272, 208, 26, 10}, {290, 208, 16, 3}}, {.blend = 1.5, .coat = 10});
        Body::Style style;
        style.palettes = {palettes::yellow};
        style.hatched = false;
        style.washStrength = 0.95;
        style.ambient = 0.06;
        chick.engrave(p, style);
        chick.fur(p,
                  {.spacing = 3.2, .length = 6, .width = 0.6, .from = 0.16, .crossFrom = 0.6, .spread = 20});
        const Path beak = closedSpline({{216, 150}, {203, 156}, {217, 161}}, 3);
        p.knockOut(beak, {.halo = 0.3});
        p.flat(beak, palettes::orange, 0.5);
        p.contour(beak, 0.8);
        p.stroke({{204, 156}, {216, 156}}, Pen{.width = 0.6});
        p.dot({229, 146}, 3.4);
        p.highlight(ellipse({228, 145}, 1, 1, 12));
        // The broken shell before it.
        Path shell{{208, 224}, {216, 212}, {222, 220}, {230, 209}, {238, 218},
                   {247, 209}, {253, 219}, {262, 212}, {264, 226}};
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
