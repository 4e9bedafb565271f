// Mugwort, Artemisia vulgaris: a red stem, leaves cut into pointed lobes, dark above and white-felted
// beneath; long leafy panicles of small egg-shaped reddish heads.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_307_armoise", [](Plate& p) {
        const Palette ruddy = mix(palettes::redstem, palettes::fawn, 0.35);
        // A blade of narrow pointed lobes; `felt` shows its white underside.
        const auto cutLeaf = [&](Point at, double degrees, double size, bool felt) {
            const Palette hue = felt ? palettes::silver : palettes::darkleaf;
            const int bend = degrees < -90 || degrees > 90 ? -1 : 1;
            const Path rib =
                spline({at, polar(at, degrees - bend * 6, size * 0.5), polar(at, degrees + bend * 6, size)});
            for (int k = 0; k < 4; ++k)
                for (const double side : {-1.0, 1.0}) {
                    const double u = 0.24 + 0.18 * k, reach = size * (0.42 - 0.07 * k);
                    const Point from = along(rib, u);
                    const double way = angleAlong(rib, u) + side * (54 - 5 * k);
                    leaf(p, {from, polar(from, way, reach * 0.5), polar(from, way - side * 8, reach)},
                         {.width = reach * 0.17, .shape = shapes::lance, .palette = hue, .veins = 3});
                    const Point tooth = polar(from, way, reach * 0.5);
                    leaflet(p, tooth, polar(tooth, way + side * 38, reach * 0.36),
                            {.width = reach * 0.08, .palette = hue, .tone = 0.2});
                }
            leaf(p, {along(rib, 0.04), along(rib, 0.5), along(rib, 1)},
                 {.width = size * 0.075, .shape = {0.4, 0.7, 0.8, 1, 0.8, 0}, .palette = hue, .veins = 4});
        };
        rootlets(p, {200, 346}, 9, 90, 110, 22);
        const Path main{{198, 350}, {205, 270}, {196, 170}, {203, 44}};
        const Path curve = spline(main);
        cutLeaf(along(curve, 0.08), -164, 138, false);
        cutLeaf(along(curve, 0.12), -14, 138, true);
        cutLeaf(along(curve, 0.28), -156, 124, true);
        cutLeaf(along(curve, 0.32), -22, 122, false);
        const auto heads = [&](const Path& way, double from, int count, double size) {
            for (int k = 0; k < count; ++k) {
                const double u = from + (1 - from) * k / (count - 1.0), side = k % 2 == 0 ? 1 : -1;
                const Point at = along(way, u), to = polar(at, angleAlong(way, u) + side * 52, 8 * size);
                p.stroke({at, to}, {.width = 0.9, .swell = 0, .fade = 0});
                const double out = angleAlong(way, u) + side * 40;
                ball(p, to, 5.2 * size, {.palette = ruddy, .direction = out, .squash = 1.35, .spacing = 2.2});
                p.flat(ellipse(polar(to, out, 6 * size), 2.2 * size, 2 * size, 12), palettes::yellow, 0.5);
            }
        };
        for (int k = 0; k < 8; ++k) {
            const double q = 0.46 + 0.06 * k, side = k % 2 == 0 ? 1 : -1, reach = 104 - 8.0 * k;
            const Point from = along(curve, q);
            const Path spray = stem(
                p, {from, polar(from, -90 + side * 54, reach * 0.5), polar(from, -90 + side * 42, reach)},
                {1.9, 1}, palettes::redstem);
            leaflet(p, from, polar(from, -90 + side * 78, 40 - 2.0 * k),
                    {.width = 4, .palette = palettes::darkleaf, .tone = 0.2});
            heads(spray, 0.3, 9 - k / 3, 1);
        }
        stem(p, main, {4.4, 3.4, 1.6}, palettes::redstem);
        heads(spline({along(curve, 0.84), along(curve, 0.92), curve.back()}), 0, 9, 0.9);
    }};
