// Common vetch, Vicia sativa: pinnate leaves of five pairs ending in a tendril, purple pea flowers in pairs
// in the leaf axils, slim pods.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Pod.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_298_vesce", [](Plate& p) {
        const LeafKind pinnate{.build = LeafKind::Build::pinnate,
                               .shape = {0.4, 0.7, 0.9, 1, 1, 0.85, 0.3},
                               .veins = 3,
                               .petiole = 0.08,
                               .leaflets = 5,
                               .leafletWidth = 0.17,
                               .terminal = false};
        const Path curve = stem(p, {{190, 350}, {212, 270}, {190, 180}, {204, 96}}, {3.4, 2.6, 1.6});
        for (const auto& [q, a, size] : {std::tuple{0.1, -12.0, 138.0},
                                         {0.26, -166.0, 144.0},
                                         {0.38, -12.0, 138.0},
                                         {0.56, -164.0, 126.0},
                                         {0.76, -14.0, 104.0},
                                         {0.99, -78.0, 62.0}})
            growLeaf(p, along(curve, q), a, size, 25, pinnate, a < -90 ? -12 : 12);
        // A pair in an axil: they look away from each other.
        for (const double q : {0.44, 0.66, 0.88})
            for (const int side : {-1, 1}) {
                const Point at = along(curve, q), to = polar(at, side > 0 ? -52 : -128, 15);
                stem(p, {at, lerp(at, to, 0.5), to}, {1.8, 1.6});
                peaFlower(p, to, side > 0 ? -14 : -166, 44, mix(palettes::purple, palettes::magenta, 0.4),
                          side, palettes::crimson);
            }
        for (const auto& [q, side] : {std::tuple{0.26, -1}, {0.1, 1}}) {
            const Point at = along(curve, q), to = at + Point{side * 14.0, -12};
            stem(p, {at, lerp(at, to, 0.5), to}, {1.7, 1.5});
            pod(p, {to, to + Point{side * 30.0, -34}, to + Point{side * 50.0, -78}},
                {.width = 6.5, .seeds = 8, .open = false, .palette = palettes::oldleaf});
        }
    }};
