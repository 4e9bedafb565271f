// Azarole, Crataegus azarolus: large orange-red haws each with a star of dried sepals, small leaves with
// three to five lobes, few thorns.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Maths.h"
#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Branch.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_052_azerole", [](Plate& p) {
        const LeafKind cut{.build = LeafKind::Build::palmate,
                           .petiole = 0.16,
                           .palette = palettes::leaf,
                           .lobes = {{-40, 0.76}, {0, 1}, {40, 0.76}},
                           .sinus = 0.62,
                           .teeth = 1,
                           .toothHeight = 1.6,
                           .bulge = 1.2};
        const Path spine = twig(p, {{70, 96}, {140, 74}, {224, 80}, {330, 54}}, {5.4, 4.2, 2.4});
        for (const double q : {0.2, 0.72})
            thorn(p, along(spine, q), angleAlong(spine, q) - 64, 24);
        growLeaf(p, along(spine, 0.06), 118, 92, 28, cut, -10);
        growLeaf(p, along(spine, 0.16), 80, 70, 24, cut, 10);
        growLeaf(p, along(spine, 0.4), -120, 76, 26, cut);
        growLeaf(p, along(spine, 0.58), -62, 76, 26, cut);
        growLeaf(p, along(spine, 0.8), 60, 100, 30, cut, 10);
        growLeaf(p, along(spine, 0.98), 6, 84, 26, cut);
        growLeaf(p, along(spine, 0.9), -76, 60, 22, cut);
        const auto haw = [&](Point from, Point at, double radius, const Palette& palette) {
            stem(p,
                 {from, lerp(from, at, 0.5) + Point{(at.x - from.x) * 0.12, 0}, at + Point{0, -radius * 0.9}},
                 {1.6, 1.4});
            ball(p, at, radius, {.palette = palette, .direction = -90, .squash = 0.94});
            const Point eye = at + Point{-radius * 0.06, radius * 0.66};
            p.dot(eye, radius * 0.17, palettes::brown.dark);
            for (int k = 0; k < 5; ++k) {
                const double a = maths::radians(k * 72.0 + 18);
                leaflet(p, eye, eye + Point{maths::cos(a) * radius * 0.46, maths::sin(a) * radius * 0.28},
                        {.width = 3, .palette = palettes::brown});
            }
        };
        const Point knot = along(spine, 0.46) + Point{4, 34};
        stem(p, {along(spine, 0.46), lerp(along(spine, 0.46), knot, 0.5), knot}, {2.6, 2});
        haw(knot, {148, 172}, 32, palettes::orange);
        haw(knot, {256, 170}, 33, palettes::red);
        haw(knot, {200, 190}, 35, mix(palettes::orange, palettes::scarlet, 0.6));
        haw(knot, {234, 248}, 34, palettes::orange);
        haw(knot, {164, 250}, 33, mix(palettes::orange, palettes::scarlet, 0.6));
    }};
