// Hemlock, Conium maculatum: a hollow stem blotched with purple, finely cut leaves, white compound umbels.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_198_cigue", [](Plate& p) {
        const LeafKind cut{.build = LeafKind::Build::frond,
                           .petiole = 0.2,
                           .leaflets = 3,
                           .leafletWidth = 0.46,
                           .subdivided = 4};
        growLeaf(p, {200, 306}, -166, 172, 40, cut, -10);
        growLeaf(p, {200, 290}, -14, 172, 40, cut, 10);
        const auto head = umbel(
            {.rays = 11, .length = 48, .spread = 140, .raylets = 10, .rayletLength = 13, .floretRadius = 3});
        for (const Path& spine :
             {Path{{200, 250}, {160, 200}, {118, 158}}, Path{{200, 240}, {240, 190}, {286, 158}}})
            head(p, stem(p, spine, {3.4, 2.2}));
        const Path main = stem(p, {{200, 344}, {201, 240}, {200, 112}}, {8.5, 7, 3});
        head(p, main);
        for (int k = 0; k < 34; ++k) {
            const double q = p.random.uniform(0.02, 0.85), r = 5.4 * (1 - 0.4 * q);
            const Point at = along(main, q) + Point{p.random.around(r), 0};
            p.flat(ellipse(at, p.random.uniform(1, 2.2), p.random.uniform(1.6, 4), 16), palettes::beet, 0.75);
        }
    }};
