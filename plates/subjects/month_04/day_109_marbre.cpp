#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/minerals/Block.h"

using namespace tambrelle::engraver;

namespace {

// Forked veins that wander from `from` to `to` within an outline.
void vein(Plate& p, Point from, Point to, double width) {
    const Point side = rightOf(unit(to - from));
    Path bends{from};
    for (int k = 1; k < 7; ++k)
        bends.push_back(lerp(from, to, k / 7.0) + side * p.random.around(length(to - from) * 0.085));
    bends.push_back(to);
    const Path line = spline(bends, 8);
    p.stroke(line,
             {.width = width * 3.4, .swell = 0.1, .fade = 0.2, .colour = Colour{0xA9B0B8}, .alpha = 0.5});
    p.stroke(line, {.width = width, .swell = 0.1, .fade = 0.3, .wobble = 0.4, .colour = Colour{0x5E656E}});
    for (const double t : {0.3, 0.55, 0.8}) {
        const Point root = along(line, t);
        const double way = angleAlong(line, t) + (t < 0.5 ? 38 : -42), span = length(to - from) * 0.26;
        const Point bend = polar(root, way, span * 0.5);
        p.stroke(spline({root, bend, polar(bend, way + p.random.around(40), span * 0.5)}, 8),
                 {.width = width * 0.7, .swell = 0, .fade = 0.8, .wobble = 0.3, .colour = Colour{0x6E757D}});
    }
}

} // namespace

// Marble: white and polished, with grey veins; a turned column base stands on a slab of it.
static const Subject subject{
    "day_109_marbre", [](Plate& p) {
        const Palette marble{0xFFFFFF, 0xECEDEE, 0x9EA4AA};
        ground(p, 66, 336, 294, 7);
        const Box plinth{.front = {208, 312}, .left = {-136, -36}, .right = {128, -38}, .height = 34};
        cutBlock(p, plinth, {.palette = marble, .leftTone = 0.2, .rightTone = 0.6, .topTone = 0.06});
        const auto veins = [&](const Path& outline, const std::vector<std::pair<Point, Point>>& lines,
                               double width) {
            const Plate::Clip clip(p, outline);
            for (const auto& [a, b] : lines)
                vein(p, a, b, width);
        };
        veins(plinth.leftFace(), {{{76, 246}, {130, 300}}, {{130, 244}, {200, 312}}}, 0.9);
        veins(plinth.rightFace(), {{{216, 300}, {276, 262}}, {{262, 304}, {330, 246}}}, 0.9);
        veins(plinth.top(), {{{96, 240}, {170, 268}}, {{240, 262}, {310, 234}}}, 0.8);
        const Point foot{204, 254};
        const LatheForm turned{.tilt = 0.3, .palette = marble, .lines = Lines::across, .hatchFrom = 0.34};
        lathe(p, foot, 18, {88, 94, 95, 94, 88}, turned);
        lathe(p, foot + Point{0, -16}, 12, {82, 76, 73, 73, 76}, turned);
        lathe(p, foot + Point{0, -27}, 12, {76, 81, 82, 81, 76}, turned);
        const LatheSurface shaft = lathe(p, foot + Point{0, -38}, 96, {74, 69, 67, 66, 66}, turned);
        veins(shaft.outline,
              {{{142, 130}, {210, 232}},
               {{176, 118}, {266, 190}},
               {{236, 128}, {262, 222}},
               {{140, 190}, {176, 232}}},
              1.3);
        const Path top = shaft.ring(1);
        p.knockOut(top, {.halo = 0, .shade = 0});
        p.flat(top, marble, 0.1);
        veins(top, {{{140, 118}, {220, 140}}, {{190, 106}, {262, 128}}}, 1.1);
        p.contour(top, 0.8);
        // The polish.
        p.highlight(band(spline({{156, 150}, {154, 180}, {156, 206}}),
                         reversed(spline({{163, 152}, {161, 180}, {163, 204}}))));
    }};
