#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/minerals/Stone.h"

using namespace tambrelle::engraver;

// Flint: a knobbly nodule with a white rind, broken open; the dark core breaks in shells, ring after ring
// about the blow. Struck with steel it gives sparks.
static const Subject subject{
    "day_106_silex", [](Plate& p) {
        ground(p, 66, 326, 296, 6);
        const ReliefSurface nodule = stone(p,
                                           closedSpline({{66, 262},
                                                         {76, 222},
                                                         {92, 190},
                                                         {124, 180},
                                                         {150, 162},
                                                         {196, 164},
                                                         {226, 154},
                                                         {262, 172},
                                                         {280, 200},
                                                         {308, 222},
                                                         {312, 258},
                                                         {298, 294},
                                                         {258, 304},
                                                         {226, 312},
                                                         {170, 306},
                                                         {120, 314},
                                                         {82, 296}},
                                                        10),
                                           {.palette = palettes::chalk,
                                            .seed = 31,
                                            .facets = 0,
                                            .rough = 3.2,
                                            .grain = 30,
                                            .depth = 52,
                                            .ragged = 2.4,
                                            .tone = -0.04});
        strew(p, nodule, 150, {{1, sepia, 0.8}}, 0.4, 0.9);
        // The broken face: shells about the point of the blow at its upper edge.
        const Path rind = closedSpline({{92, 246},
                                        {108, 204},
                                        {152, 182},
                                        {216, 180},
                                        {264, 204},
                                        {288, 244},
                                        {274, 284},
                                        {222, 294},
                                        {156, 298},
                                        {108, 282}},
                                       12);
        const Path core = closedSpline({{101, 246},
                                        {116, 210},
                                        {156, 190},
                                        {214, 188},
                                        {257, 210},
                                        {278, 244},
                                        {266, 277},
                                        {219, 286},
                                        {158, 290},
                                        {115, 275}},
                                       12);
        p.knockOut(rind, {.halo = 0, .shade = 0});
        p.flat(rind, Colour{0xFBF7EA});
        p.contour(rind, 0.7);
        const Point blow{132, 192};
        ReliefForm r;
        r.palette = {0xA79C92, 0x554A43, 0x201A18};
        r.tone = 0.22;
        r.shade = 0;
        r.soften = 0.8;
        r.hatchFrom = 0.2;
        r.occlusion = false;
        r.lines = {0.62, 0.62, 0.3};
        r.crossFrom = 0.8;
        r.height = [&](Point at, double depth) {
            const Point q = at - blow;
            const double d = maths::length(q.x * 0.92, q.y * 1.12);
            const double ring = maths::pow(d / 15.0, 0.93);
            const double saw = ring - std::floor(ring);
            return 1.5 * std::min(depth, 2.0) - 0.0010 * (d - 60) * (d - 60) +
                   5.0 * saw * saw * (1 - maths::smooth(0.88, 1, saw));
        };
        relief(p, core, r);
        {
            const Plate::Clip clip(p, core);
            for (int k = 2; k < 11; ++k) { // glints on the crests
                const double d = 15.0 * maths::pow(k - 0.2, 1 / 0.93);
                p.stroke(
                    arc(blow, d / 0.92, d / 1.12, 18 + 2 * k, 84 - 3 * k, 30),
                    {.width = 1.5, .swell = 0.4, .fade = 0.4, .colour = Colour{0xF2EDE6}, .alpha = 0.95});
            }
        }
        // The steel, and the sparks that fly from the edge.
        for (int k = 0; k < 15; ++k) {
            const double way = -178 + 6.5 * k + p.random.around(4), from = p.random.uniform(6, 12);
            const Point root{184, 158};
            if (way > -84)
                continue;
            const double to = from + p.random.uniform(14, 30);
            p.stroke({polar(root, way, from), polar(root, way, to)},
                     {.width = 2.0, .swell = 0.2, .fade = 0.6, .colour = Colour{0xE0741E}});
            p.dot(polar(root, way, to + 5), 1.3, Colour{0xC2501A});
        }
        tube(p,
             {{206, 138},
              {199, 127},
              {185, 130},
              {182, 146},
              {196, 158},
              {222, 154},
              {252, 143},
              {284, 131},
              {302, 117},
              {299, 100},
              {284, 97},
              {277, 109}},
             {2, 2.6, 3.2, 4.4, 6.4, 7.4, 7.4, 6.4, 4.4, 3.2, 2.6, 2}, {.palette = palettes::steel});
    }};
