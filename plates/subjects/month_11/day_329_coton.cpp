// Cotton, Gossypium: three-lobed leaves, bolls burst open with four white tufts, a cream flower with a dark
// eye.

#include "plates/engraver/Relief.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_329_coton", [](Plate& p) {
        const LeafKind three{.build = LeafKind::Build::palmate,
                             .petiole = 0.26,
                             .lobes = {{-52, 0.82}, {0, 1}, {52, 0.82}},
                             .sinus = 0.55,
                             .teeth = 0,
                             .toothHeight = 0};
        const Path main =
            twig(p, {{200, 350}, {196, 260}, {206, 160}, {200, 84}}, {4.6, 3.6, 2.2}, palettes::redstem);
        const auto boll = [&](const Path& stalk, double size) {
            stem(p, stalk, {2.4, 2}, palettes::redstem);
            const Point at = stalk.back();
            const double way = angleAlong(stalk, 1);
            for (const double a : {-78.0, 78.0, -140.0, 140.0, 180.0})
                leaflet(p, at, polar(at, way + a, size * 1.25),
                        {.width = size * 0.3,
                         .palette = palettes::brown,
                         .shape = shapes::ovate,
                         .tone = 0.25,
                         .contour = 0.7});
            for (const double a : {-100.0, 100.0, -35.0, 35.0}) {
                const Point c = polar(polar(at, way, size * 0.35), way + a, size * 0.52);
                Path tuft;
                for (int k = 0; k < 11; ++k)
                    tuft.push_back(polar(c, k * 360.0 / 11,
                                         size * (0.56 + p.random.around(0.05) + (k % 2 == 0 ? 0.05 : 0))));
                relief(p, closedSpline(tuft),
                       {.palette = palettes::whiteflower, .spacing = 2.6, .coverage = 0.3, .contour = 0.8});
                for (int k = 0; k < 7; ++k) {
                    const Point s = polar(c, p.random.uniform(0, 360), size * 0.3);
                    p.stroke(spline({s, s + Point{4, 2}, s + Point{5, 7}}), {.width = 0.5});
                }
            }
        };
        growLeaf(p, along(main, 0.24), -160, 112, 34, three);
        growLeaf(p, along(main, 0.2), -16, 112, 34, three);
        growLeaf(p, along(main, 0.62), -168, 96, 30, three);
        growLeaf(p, along(main, 0.96), -54, 92, 28, three);
        growLeaf(p, along(main, 0.58), 4, 96, 30, three);
        boll({{198, 236}, {150, 206}, {122, 190}}, 34);
        boll({{204, 190}, {252, 168}, {284, 152}}, 34);
        boll({{196, 280}, {240, 256}, {264, 250}}, 30);
        flower(p, {198, 92}, -104,
               {.length = 42,
                .width = 24,
                .baseAngle = 26,
                .tipAngle = 52,
                .palette = palettes::cream,
                .tips = palettes::pink,
                .tilt = 34,
                .sepals = 3});
    }};
