// Peony, Paeonia officinalis: one great double crimson bowl of petals, a round bud, leaves of nine broad
// lance lobes.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Sheet.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_269_pivoine", [](Plate& p) {
        stem(p, {{196, 346}, {204, 280}, {200, 180}}, {5, 4.2});
        stem(p, {{202, 286}, {246, 240}, {276, 174}}, {3, 2.4});
        const auto biternate = [&](Point from, double degrees, double size) {
            const Point hub = polar(from, degrees, size * 0.42);
            stem(p, {from, lerp(from, hub, 0.5), hub}, {2, 1.6}, palettes::redstem);
            for (const double turn : {-58.0, 58.0, 0.0}) {
                const Point knot = polar(hub, degrees + turn, size * (turn == 0 ? 0.18 : 0.12));
                stem(p, {hub, lerp(hub, knot, 0.5), knot}, {1.5, 1.2});
                for (const double side : {-36.0, 36.0, 0.0}) {
                    const double way = degrees + turn * 0.9 + side;
                    const double reach = size * (side == 0 ? 0.46 : 0.38);
                    leaf(p, {knot, polar(knot, way, reach * 0.5), polar(knot, way, reach)},
                         {.width = size * 0.082,
                          .shape = shapes::elliptic,
                          .palette = palettes::darkleaf,
                          .veins = 6});
                }
            }
        };
        biternate({199, 312}, -170, 132);
        biternate({202, 300}, -4, 138);
        biternate({202, 250}, -148, 104);
        ball(p, {278, 160}, 20, {.palette = palettes::crimson, .direction = -80});
        leaflet(p, {276, 178}, {262, 150}, {.width = 8, .shape = shapes::ovate, .bend = -4});
        leaflet(p, {277, 178}, {296, 152}, {.width = 8, .shape = shapes::ovate, .bend = 4});
        for (const double a : {150.0, 110.0, 70.0, 30.0})
            leaflet(p, polar({200, 170}, a, 20), polar({200, 160}, a, 64),
                    {.width = 10, .shape = shapes::ovate});
        Sheets head;
        const Frame frame({200, 162}, 44);
        const int n = 40;
        const double size = 84;
        for (int k = 0; k < n; ++k) {
            const double f = k / (n - 1.0);
            head.petal(
                frame, k * 137.5 + p.random.around(10),
                {.length = size * (0.46 + 0.56 * f),
                 .width = size * (0.16 + 0.34 * f),
                 .baseAngle = 2 + 46 * f,
                 .tipAngle = -18 + 92 * maths::pow(f, 1.4),
                 .shape = {0.35, 0.75, 1, 1.02, 0.9, 0.2},
                 .cup = 0.8 + 0.5 * f,
                 .curl = -6,
                 .notch = 0.06,
                 .ruffle = 2.4,
                 .ruffleTurns = 7,
                 .radius = 1 + 8 * f,
                 .offset = -size * 0.2 * f,
                 .tone = [f](double u,
                             double) { return 0.34 * (1 - maths::smooth(0, 0.75, u)) + 0.08 * (1 - f); }},
                p.random);
        }
        head.engrave(p, {.palettes = {Sheets::Style::Tint{palettes::crimson,
                                                          mix(palettes::crimson, palettes::rose, 0.3)}},
                         .coverage = 0.42,
                         .washLift = 0.02,
                         .occlusion = 0.7});
    }};
