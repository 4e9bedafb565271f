#include "plates/engraver/Face.h"
#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/minerals/Stone.h"

using namespace tambrelle::engraver;

namespace {

// A cleft sheet from a corner path of five: its near edges, then its upper side.
void sheet(Plate& p, const Path& c, double thick, double tone, std::uint64_t seed) {
    const Path left = brokenEdge(c[0], c[1], 2.2, seed), right = brokenEdge(c[1], c[2], 2.2, seed + 1);
    const Path back =
        joined(joined(brokenEdge(c[2], c[3], 2.2, seed + 2), brokenEdge(c[3], c[4], 2.2, seed + 3)),
               brokenEdge(c[4], c[0], 2.2, seed + 4));
    FaceForm f{.palette = palettes::slate,
               .spacing = 1.7,
               .coverage = 0.55,
               .contour = 0.7,
               .shade = 0.25,
               .halo = 0.15};
    for (const auto& [edge, dark] : {std::pair{left, 0.55}, std::pair{right, 0.82}}) {
        f.tone = dark;
        f.lines = angleOf(edge.back() - edge.front());
        face(p, band(edge, moved(edge, {0, thick})), f);
        for (const double level : {0.35, 0.7}) // the cleavage shows in the edge
            p.stroke(moved(edge, {0, thick * level}), {.width = 0.5, .wobble = 0.3});
    }
    f.tone = tone;
    f.lines = -7;
    f.spacing = 2.6;
    f.gradient = 0.12;
    f.shade = 0;
    face(p, joined(joined(left, right), back), f);
}

} // namespace

// Slate: blue-grey, cleft into thin flat sheets; a roofing slate with its two nail holes leans on the pile.
static const Subject subject{
    "day_103_ardoise", [](Plate& p) {
        ground(p, 66, 336, 292, 7);
        std::uint64_t seed = 40;
        for (int k = 0; k < 9; ++k) {
            const double y = 290.0 - k * 13.5, w = 112 - k * 5.0 + p.random.around(6),
                         x = 214 + p.random.around(10);
            Path c{{x - w, y - 4},
                   {x - w * 0.15, y + 8},
                   {x + w, y - 6},
                   {x + w * 0.55, y - 38},
                   {x - w * 0.62, y - 34}};
            for (Point& q : c)
                q = q + Point{p.random.around(4), p.random.around(2)};
            sheet(p, c, 10 + p.random.around(2), 0.22 + 0.02 * k, seed += 10);
        }
        const Path slate{{74, 300}, {110, 188}, {124, 176}, {162, 188}, {168, 204}, {134, 316}};
        face(p, moved(slate, {5, 3}), {.tone = 0.85, .palette = palettes::slate, .shade = 0.35});
        face(p, slate,
             {.tone = 0.34,
              .palette = palettes::slate,
              .lines = 18,
              .spacing = 2.4,
              .gradient = 0.16,
              .halo = 0.2});
        for (const Point hole : {Point{124, 200}, Point{148, 207}}) {
            p.dot(hole, 2.8);
            p.stroke(arc(hole, 4, 4, 200, 330), {.width = 0.5});
        }
    }};
