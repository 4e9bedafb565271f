// Thyme, Thymus vulgaris: a woody, much branched small bush with tiny grey leaves rolled at the edge, heads
// of pale lipped flowers.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_268_thym", [](Plate& p) {
        ground(p, 110, 290, 330, 4);
        for (const double f : {-1.0, 1.0, -0.62, 0.64, -0.3, 0.32, 0.0}) {
            const double tall = 216 - 66 * f * f;
            const Path shoot{
                {200 + f * 8, 328}, {200 + f * 46, 328 - tall * 0.45}, {200 + f * 116, 330 - tall}};
            const Path curve = twig(p, shoot, {4, 2.2, 1.2});
            for (int k = 0; k < 9; ++k) {
                const double q = 0.26 + 0.074 * k;
                const Point at = along(curve, q);
                const double way = angleAlong(curve, q);
                for (const double side : {-1.0, 1.0}) {
                    leaflet(p, at, polar(at, way + side * 64, 18),
                            {.width = 2.6,
                             .palette = k % 2 == 0 ? palettes::greygreen : palettes::bluegreen,
                             .shape = shapes::elliptic});
                    leaflet(p, at, polar(at, way + side * 26, 12),
                            {.width = 2.2, .palette = palettes::greygreen, .shape = shapes::elliptic});
                }
            }
            const double way = angleAlong(curve, 1);
            for (const double q : {0.93, 1.0})
                for (const double turn : {-92.0, 92.0, -54.0, 54.0, -18.0, 18.0})
                    lipFlower(p, polar(along(curve, q), way + turn, 4), way + turn, q < 1 ? 17 : 15,
                              mix(palettes::pink, palettes::lilac, 0.5), turn < 0 ? -1 : 1);
        }
    }};
