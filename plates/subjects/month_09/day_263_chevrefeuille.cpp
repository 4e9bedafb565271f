// Honeysuckle, Lonicera caprifolium: a twining stem, paired leaves grown together in a saucer under a head
// of long curved two-lipped trumpets.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_263_chevrefeuille", [](Plate& p) {
        const Path vine = twig(p, {{128, 342}, {182, 300}, {168, 250}, {212, 214}, {202, 164}}, {3.6, 3, 2.2},
                               mix(palettes::bark, palettes::redstem, 0.5));
        const LeafKind oval{.shape = shapes::elliptic,
                            .veins = 6,
                            .petiole = 0.04,
                            .palette = mix(palettes::leaf, palettes::bluegreen, 0.5)};
        for (const auto& [q, size] : {std::pair{0.2, 96.0}, {0.5, 98.0}})
            for (const double side : {-1.0, 1.0})
                growLeaf(p, along(vine, q), -90 + side * 84, size, 23, oval, side * 14);
        const Point hub{202, 164};
        leaf(p, {hub + Point{2, 0}, hub + Point{-50, -4}, hub + Point{-92, 8}},
             {.width = 30, .shape = {0.85, 1, 0.9, 0.6, 0}, .palette = palettes::bluegreen});
        leaf(p, {hub + Point{-2, 0}, hub + Point{50, -4}, hub + Point{92, 8}},
             {.width = 30, .shape = {0.85, 1, 0.9, 0.6, 0}, .palette = palettes::bluegreen});
        for (const double a : {-172.0, -8.0, -150.0, -30.0, -126.0, -54.0, -104.0, -76.0}) {
            const double side = a < -90 ? -1 : 1;
            const double reach = 72 + p.random.around(4);
            const Point from = polar(hub + Point{0, -6}, a, 8);
            const Point mid = polar(from, a + side * 6, reach * 0.5),
                        mouth = polar(from, a - side * 4, reach);
            const double way = angleOf(mouth - mid);
            tube(p, {from, mid, mouth}, {1.8, 2.8, 4.6},
                 {.palette = mix(palettes::rose, palettes::crimson, 0.25), .lines = Lines::along});
            for (const double turn : {-10.0, 10.0})
                p.stroke({mouth, polar(mouth, way + turn, 18), polar(mouth, way + turn * 1.6, 34)},
                         {.width = 1.1, .swell = 0, .fade = 0});
            for (const double turn : {-10.0, 10.0})
                ball(p, polar(mouth, way + turn * 1.6, 35), 2.4,
                     {.palette = palettes::yellow, .lines = Lines::none});
            leaf(
                p,
                {polar(mouth, way, -3), polar(mouth, way - side * 50, 14), polar(mouth, way - side * 98, 27)},
                {.width = 8.5,
                 .shape = {0.5, 0.8, 1, 0.95, 0.3},
                 .palette = palettes::cream,
                 .veins = 0,
                 .parallel = true});
            leaf(
                p,
                {polar(mouth, way, -3), polar(mouth, way + side * 34, 13), polar(mouth, way + side * 90, 27)},
                {.width = 4,
                 .shape = {0.7, 0.9, 1, 0.9, 0.3},
                 .palette = palettes::cream,
                 .veins = 0,
                 .parallel = true});
        }
    }};
