#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/carpentry/Iron.h"
#include "plates/engraver/carpentry/Wood.h"

using namespace tambrelle::engraver;

// The axe: a broad bitted head on a curved helve, its edge struck into a chopping block.
static const Subject subject{
    "day_130_coignee", [](Plate& p) {
        ground(p, 70, 330, 296, 6);
        LatheForm stump;
        stump.palette = palettes::bark;
        stump.lines = Lines::along;
        stump.tilt = 0.34;
        stump.texture = [](double u, double angle, double tone) {
            return tone + 0.1 * maths::sin(angle * 23 + 3 * maths::sin(u * 5)) +
                   0.06 * maths::sin(angle * 41);
        };
        const LatheSurface block = lathe(p, {184, 286}, 66, {94, 88, 87}, stump);
        const Path top = block.ring(1);
        p.knockOut(top, {.halo = 0, .shade = 0});
        p.flat(top, palettes::tan, 0.22);
        p.contour(top, 0.9);
        const Point heart = centroid(top);
        for (const double q : {0.14, 0.27, 0.39, 0.5, 0.61, 0.72, 0.82, 0.91}) {
            Path ring;
            for (const Point e : top)
                ring.push_back(lerp(heart, e, q));
            p.contour(ring, {.width = 0.5, .wobble = 0.6});
        }
        for (const double a : {20.0, 95.0, 160.0, 250.0, 320.0})
            p.stroke({heart, lerp(heart, block.at(1, a), 0.6), block.at(1, a)},
                     Pen{.width = 0.9, .swell = 0.6, .fade = 0, .wobble = 0.8});
        // Helve, then the head over it; the edge is lost in the cleft.
        pole(p, {{168, 128}, {218, 112}, {268, 92}, {306, 66}, {330, 62}}, {8, 7, 6.6, 7, 9});
        const Path head = joined(
            spline({{142, 124}, {150, 112}, {184, 104}, {192, 116}, {190, 140}, {198, 172}, {220, 216}}),
            spline({{218, 220},
                    {184, 230},
                    {150, 230},
                    {122, 224},
                    {120, 218},
                    {138, 178},
                    {144, 146},
                    {142, 126}}));
        forged(p, head, {.bevel = 16, .heightScale = 0.7, .tone = 0.05});
        p.stroke(spline({{128, 206}, {156, 213}, {186, 213}, {211, 203}}), Pen{.width = 0.7});
        const Path cleft =
            closedSpline({{112, 223}, {150, 228}, {186, 228}, {226, 217}, {190, 236}, {150, 238}}, 8);
        p.ink(cleft, sepia, 0.8);
        sawnPole(p, {{160, 130}, {150, 133}}, {7, 8});
    }};
