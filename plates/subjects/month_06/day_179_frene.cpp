// Ash, Fraxinus excelsior: pinnate leaves, a dense hanging bunch of tongue-shaped keys, black velvety buds.

#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Branch.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_179_frene", [](Plate& p) {
        const Path curve = twig(p, {{92, 92}, {150, 74}, {214, 80}, {268, 62}}, {6.4, 5.4, 4.6});
        const LeafKind pinnate{.build = LeafKind::Build::pinnate,
                               .shape = shapes::lance,
                               .margin = serrate(8, 0.12),
                               .veins = 6,
                               .petiole = 0.14,
                               .leaflets = 4,
                               .leafletWidth = 0.18};
        growLeaf(p, along(curve, 0.06), 108, 206, 40, pinnate, -10);
        growLeaf(p, along(curve, 0.96), 62, 212, 40, pinnate, 12);
        // Keys: the seed in the slender upper end, the wing a tongue below it.
        const auto key = [&](Point from, double degrees, double size, double bend) {
            const Point mid = polar(from, degrees, size * 0.5) + rightOf(direction(degrees)) * bend;
            leaf(p, {from, mid, polar(from, degrees, size)},
                 {.width = size * 0.13,
                  .shape = {0.34, 0.62, 0.62, 0.9, 1, 0.92, 0},
                  .palette = mix(palettes::oldleaf, palettes::straw, 0.35),
                  .veins = 0,
                  .parallel = true,
                  .tone = p.random.around(0.06),
                  .contour = 0.75,
                  .midrib = 0.5});
            leaflet(
                p, from, polar(from, degrees, size * 0.4),
                {.width = size * 0.05, .palette = palettes::brown, .shape = shapes::elliptic, .tone = 0.2});
        };
        const Path axis = spline({along(curve, 0.58), {196, 120}, {202, 170}, {198, 214}});
        struct Key {
            double from, sideways, degrees, size;
        };
        std::vector<Key> keys;
        for (int k = 0; k < 26; ++k) {
            const double t = k / 25.0, sideways = (k * 5 % 26 - 12.5) * 3.2;
            keys.push_back({0.94 - 0.62 * t, sideways, 90 - sideways * 0.62 + p.random.around(6),
                            p.random.uniform(66, 80)});
        }
        for (const Key& k : keys) {
            const Point at = along(axis, k.from), to = at + Point{k.sideways, 12};
            p.stroke(spline({at, lerp(at, to, 0.6) + Point{0, -4}, to}),
                     {.width = 1.3, .swell = 0, .fade = 0});
            key(to, k.degrees, k.size, k.sideways * 0.06);
        }
        stem(p, {along(curve, 0.58), {197, 112}, {199, 134}}, {2.8, 2.2});
        bud(p, curve.back(), -16, 32, palettes::black);
        bud(p, polar(curve.back(), 160, 9), -64, 20, palettes::black);
        bud(p, polar(curve.back(), 160, 9), 46, 18, palettes::black);
        bud(p, along(curve, 0.36), -72, 20, palettes::black);
    }};
