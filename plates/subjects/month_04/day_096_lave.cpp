#include "plates/engraver/Ground.h"
#include "plates/engraver/Noise.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/minerals/Stone.h"

using namespace tambrelle::engraver;

// Lava: glowing streams run from a volcano's crater down its dark cone, under a plume of smoke.
static const Subject subject{
    "day_096_lave", [](Plate& p) {
        ground(p, 66, 336, 300, 5);
        // The plume: rolling clouds drawn from the far ones to the near.
        const Palette smoke{0xF1ECE6, 0xB9B0A8, 0x6E645D};
        std::vector<std::pair<Point, double>> billows{{{204, 138}, 14.0}};
        for (int k = 0; k < 46; ++k) {
            const double t = p.random.uniform(0.1, 1);
            const Point middle = lerp({204, 132}, {236, 62}, t);
            const double breadth = 10 + 44 * t, way = p.random.uniform(0, 360),
                         out = p.random.uniform(0.3, 1);
            billows.emplace_back(
                middle + Point{breadth * direction(way).x, 0.5 * breadth * direction(way).y} * out,
                (7 + 15 * t) * (1.25 - 0.6 * out));
        }
        Path cloud; // how far the billows reach in every direction
        for (int k = 0; k < 180; ++k) {
            const Point d = direction(2.0 * k), middle{220, 96};
            double reach = 4;
            for (const auto& [c, r] : billows) {
                const double along = dot(c - middle, d), aside = cross(c - middle, d);
                if (r > std::fabs(aside))
                    reach = std::max(reach, along + std::sqrt(r * r - aside * aside));
            }
            cloud.push_back(middle + d * reach);
        }
        ReliefForm steam{.palette = smoke, .contour = 0.7, .shade = 0.1};
        steam.crossFrom = 0.8;
        const Noise wisps(23, 3, 0.6);
        steam.height = [&](Point at, double) {
            double z = 2.2 * wisps(at.x / 11, at.y / 11);
            double rise = 0;
            for (const auto& [c, r] : billows) {
                const Point q = at - c;
                rise = std::max(rise, std::sqrt(std::max(0.0, r * r - dot(q, q))) + 0.30 * (at.y - 60));
            }
            return z + rise;
        };
        steam.soften = 2;
        relief(p, cloud, steam);
        const Path cone = joined(
            joined(brokenEdge({62, 304}, {128, 226}, 2.5, 3), brokenEdge({128, 226}, {178, 140}, 2.5, 4)),
            joined(
                joined(brokenEdge({178, 140}, {230, 142}, 3, 5), brokenEdge({230, 142}, {278, 222}, 2.5, 6)),
                joined(brokenEdge({278, 222}, {338, 304}, 2.5, 7), Path{{200, 316}})));
        const Noise gullies(17, 4, 0.55);
        ReliefForm r;
        r.palette = {0xCBBBAA, 0x84705F, 0x3E312A};
        r.crossFrom = 0.66;
        r.height = [&](Point at, double depth) {
            // Ridges run down from the crater: noise over the direction from the summit.
            const Point q = at - Point{204, 96};
            const double way = maths::atan2(q.x, q.y);
            const double down = length(q);
            return 46 - 60 * maths::pow(std::fabs(way), 1.4) - 0.0 * depth +
                   down * 0.03 * gullies(way * 13, down / 60);
        };
        r.soften = 1.6;
        r.creases = true;
        relief(p, cone, r);
        // The crater's mouth and the streams.
        const Palette fire{0xFFF2A6, 0xF58A2C, 0xB5301A};
        const Path crater = closedSpline({{180, 142}, {204, 135}, {229, 143}, {206, 152}});
        const auto stream = [&](const Path& spine, double from, double to) {
            const Path line = spline(spine, 12), side = normals(line);
            Path left, right;
            for (std::size_t i = 0; i < line.size(); ++i) {
                const double w = maths::lerp(from, to, fraction(i, line.size())) *
                                 (1 + 0.22 * maths::sin(static_cast<double>(i) * 0.7));
                left.push_back(line[i] + side[i] * w);
                right.push_back(line[i] - side[i] * w);
            }
            relief(
                p, band(left, right),
                {.palette = fire, .bevel = to, .hatchFrom = 0.5, .tone = 0.06, .contour = 0.7, .shade = 0.1});
            for (std::size_t k = 1; k < 5; ++k) {
                const double f = static_cast<double>(k) / 5;
                const Point at = along(line, f);
                const double w = maths::lerp(from, to, f) * 0.7, way = angleAlong(line, f);
                p.stroke(spline({at + rotate({-w * 0.5, -w}, way), at + rotate({w * 0.5, 0}, way),
                                 at + rotate({-w * 0.5, w}, way)},
                                6),
                         {.width = 0.9, .colour = Colour{0x8A2413}});
            }
        };
        stream({{196, 148}, {176, 184}, {172, 214}, {146, 244}, {136, 276}, {112, 302}}, 5, 13);
        stream({{214, 150}, {224, 182}, {218, 212}, {238, 246}, {240, 276}, {262, 304}}, 5, 13);
        stream({{205, 152}, {202, 178}, {206, 204}, {196, 236}}, 4, 4.5);
        p.knockOut(crater, {.halo = 0.3, .shade = 0});
        p.flat(crater, fire, 0.62);
        p.contour(crater, 0.8);
        // Thrown cinders.
        for (const auto& [from, to] :
             {std::pair{Point{190, 134}, Point{164, 98}}, std::pair{Point{196, 132}, Point{180, 84}},
              std::pair{Point{220, 134}, Point{250, 104}}, std::pair{Point{186, 138}, Point{148, 118}},
              std::pair{Point{226, 138}, Point{266, 124}}}) {
            const Path flight = spline({from, lerp(from, to, 0.6) + Point{0, -8}, to}, 8);
            p.stroke(flight, {.width = 1.8, .swell = 0.1, .fade = 0.1, .colour = Colour{0xE8702A}});
            p.dot(to, 2.2, Colour{0x8A2413});
        }
    }};
