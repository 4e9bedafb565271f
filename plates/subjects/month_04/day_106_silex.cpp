#include "plates/engraver/Ground.h"
#include "plates/engraver/Noise.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/minerals/Stone.h"

using namespace tambrelle::engraver;

namespace {

constexpr Palette flint{0xCFC3B6, 0x6E6158, 0x271F1B};
constexpr Point butt{150, 312}, tip{188, 62};

// The edge of the worked piece: `q` from its butt to its point, on either side (-1, 1).
Point edge(double q, double side) {
    static const Profile breadth{30, 60, 70, 64, 50, 33, 16, 0};
    const Point along = unit(tip - butt);
    const double scallops = 1 - 0.045 * std::fabs(maths::sin(q * 26 + side));
    return lerp(butt, tip, q) + rightOf(along) * (side * breadth(q) * scallops);
}

// Where a flake was struck off: from its place on the edge the scar rises towards the middle, hollow across,
// with ripples about the blow.
struct Scar {
    Point blow;
    Point inwards;
    double breadth;
    double height(Point at) const {
        const Point q = at - blow;
        const double in = dot(q, inwards), across = dot(q, rightOf(inwards));
        return 3 + 0.36 * std::max(in, 0.0) + across * across / breadth + 0.34 * maths::sin(length(q) / 1.5);
    }
};

std::vector<Scar> scars(Random& random) {
    std::vector<Scar> all;
    for (const double side : {-1.0, 1.0})
        for (int k = 0; k < 8; ++k) {
            const double q = 0.04 + (k + 0.25 * (side + 1)) * 0.118;
            const Point blow = edge(q, side * 1.04);
            const Point middle = lerp(butt, tip, q - 0.04 + random.around(0.03));
            all.push_back({blow, unit(middle - blow), random.uniform(26, 44)});
        }
    return all;
}

} // namespace

// Flint: dark and glassy under a white rind; it breaks in hollow shells with ripples about the blow. A worked
// hand-axe, and the steel that strikes sparks from a splinter of it.
static const Subject subject{
    "day_106_silex", [](Plate& p) {
        ground(p, 74, 336, 304, 5);
        Path left, right;
        for (int k = 0; k <= 60; ++k) {
            left.push_back(edge(k / 60.0, -1));
            right.push_back(edge(k / 60.0, 1));
        }
        const Path outline = band(left, right);
        const std::vector<Scar> struck = scars(p.random);
        const Noise rind(12, 3, 0.5);
        ReliefForm r{.palette = flint, .soften = 1};
        r.tone = 0.06;
        r.spacing = 2;
        r.hatchFrom = 0.34;
        r.crossFrom = 0.8;
        r.creases = true;
        r.height = [&](Point at, double depth) {
            double z = 30;
            for (const Scar& scar : struck)
                z = std::min(z, scar.height(at));
            return std::min(z, depth * 2);
        };
        r.tint = [&](Point at, double, double tone, Colour colour) {
            const double q = dot(at - butt, unit(tip - butt)) / length(tip - butt);
            const double bare = 0.13 + 0.05 * rind(at.x / 16, at.y / 16);
            return q < bare ? ramp(palettes::chalk, tone * 0.8) : colour;
        };
        relief(p, outline, r);
        // The splinter, its rind to the right, and the steel upon its edge.
        stone(
            p,
            {{238, 296}, {232, 262}, {262, 236}, {300, 240}, {330, 268}, {336, 298}, {296, 310}, {254, 308}},
            {.palette = flint,
             .seed = 8,
             .facets = 8,
             .rough = 0.5,
             .depth = 44,
             .ragged = 1,
             .tone = 0.06,
             .tint = [&](Point at, double, double tone, Colour colour) {
                 const double across = at.x - 0.45 * (at.y - 270);
                 return across > 312 + 5 * rind(at.x / 14, at.y / 14) ? ramp(palettes::chalk, tone * 0.8)
                                                                      : colour;
             }});
        const Point spark{264, 232};
        for (int k = 0; k < 15; ++k) {
            const double way = -176 + 6.2 * k + p.random.around(4), from = p.random.uniform(7, 12);
            const double to = from + p.random.uniform(14, 32);
            p.stroke({polar(spark, way, from), polar(spark, way, to)},
                     {.width = 2.2, .swell = 0.2, .fade = 0.6, .colour = Colour{0xE0741E}});
            p.dot(polar(spark, way, to + 5), 1.5, Colour{0xC2501A});
        }
        tube(p,
             {{294, 206},
              {284, 197},
              {272, 201},
              {266, 216},
              {272, 230},
              {290, 234},
              {312, 222},
              {330, 202},
              {340, 178},
              {334, 158},
              {320, 158},
              {316, 170}},
             {1.8, 2.6, 3.4, 4.6, 6.2, 7, 7, 6.2, 4.6, 3.4, 2.6, 1.8}, {.palette = palettes::steel});
    }};
