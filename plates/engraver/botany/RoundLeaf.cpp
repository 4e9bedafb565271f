#include "plates/engraver/botany/RoundLeaf.h"

#include "plates/engraver/Relief.h"

namespace tambrelle::engraver {

Path roundLeaf(Plate& plate, Point at, double degrees, double size, const RoundLeafForm& f) {
    const Point out = direction(degrees) * size, side = rightOf(direction(degrees)) * (size * f.breadth);
    const auto place = [&](double x, double y) { return at + out * x + side * y; };
    const double tip = 0.5 - 0.42 * f.point;
    const Path right{place(-f.bay * 0.55, 0.10), place(-f.bay, 0.42), place(-f.bay * 0.62, 0.82),
                     place(0.12, 1.0),           place(0.52, 0.84),   place(0.86, tip)};
    Path knots{place(0, 0)};
    knots.insert(knots.end(), right.begin(), right.end());
    knots.push_back(place(1, 0));
    const Path left{place(0.86, -tip),           place(0.52, -0.84),   place(0.12, -1.0),
                    place(-f.bay * 0.62, -0.82), place(-f.bay, -0.42), place(-f.bay * 0.55, -0.10)};
    knots.insert(knots.end(), left.begin(), left.end());
    Path outline = resample(closedSpline(knots, 10), 220);
    if (f.teeth > 0) {
        const Path normal = normals(outline);
        const double inward = signedArea(outline) > 0 ? 1 : -1;
        for (std::size_t i = 0; i < outline.size(); ++i) {
            const double turn = fraction(i, outline.size()) * f.teeth;
            outline[i] = outline[i] + normal[i] * (inward * f.toothHeight * (turn - std::floor(turn) - 0.5));
        }
    }
    const double half = size * std::max(f.breadth, 0.5);
    // Folded a little along the midrib: the half towards the light is the paler.
    const double fold = dot(unit(side), Point{-0.63, -0.77}) > 0 ? 1 : -1;
    relief(plate, outline,
           {.palette = f.palette,
            .bevel = half * 0.4,
            .heightScale = 0.3,
            .crossFrom = 1,
            .coverage = 0.34,
            .hatchFrom = 0.4,
            .contour = 0.85,
            .occlusion = false,
            .tint = [=](Point p, double, double tone, Colour colour) {
                const Point d = p - at;
                const double across = dot(d, unit(side)) / half, along = dot(d, out) / (size * size);
                const double reach = maths::length(across, (along - 0.18) * 1.3);
                const Colour folded =
                    mix(colour, ramp(f.palette, tone * 0.5 + (across * fold > 0 ? 0.12 : 0.62)),
                        0.55 * maths::smooth(0, 0.06, std::fabs(across)));
                const double ring = maths::exp(-(reach - 0.56) * (reach - 0.56) / 0.018);
                return mix(folded, Colour(0xDDE4D4), f.marbling * ring);
            }});
    const Plate::Clip within(plate, outline);
    for (const auto& [x, y] : {std::pair{0.98, 0.0},
                               {0.7, 0.62},
                               {0.7, -0.62},
                               {0.22, 0.9},
                               {0.22, -0.9},
                               {-f.bay * 0.6, 0.66},
                               {-f.bay * 0.6, -0.66}}) {
        const Point end = place(x, y);
        const Path vein = spline({at, lerp(at, end, 0.5) + out * (0.06 * std::fabs(y)), end});
        plate.stroke(vein, {.width = y == 0 ? 1.3 : 1, .swell = 0, .fade = 0.7});
        for (const double q : {0.4, 0.62, 0.8})
            for (const double turn : {-42.0, 42.0})
                plate.stroke({along(vein, q), polar(along(vein, q), angleAlong(vein, q) + turn, size * 0.17)},
                             {.width = 0.55, .swell = 0, .fade = 0.8});
    }
    return outline;
}

} // namespace tambrelle::engraver
