// Rosemary, Salvia rosmarinus: woody twigs crowded with needle leaves, dark above and white below, pale
// blue lipped flowers.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_276_romarin", [](Plate& p) {
        const auto sprig = [&](const Path& spine, int nodes) {
            const Path curve = twig(p, spine, {4.6, 3, 1.8});
            for (int k = 0; k < nodes; ++k) {
                const double q = 0.12 + 0.88 * k / (nodes - 1.0), way = angleAlong(curve, q);
                for (const int side : {-1, 1}) {
                    const Point at = along(curve, q);
                    leaflet(p, at, polar(at, way + side * 46, 40 - 12 * q),
                            {.width = 2.6, .palette = palettes::whiteflower, .shape = shapes::linear});
                    leaflet(p, at, polar(at, way + side * 54, 44 - 14 * q),
                            {.width = 3.2, .palette = palettes::darkleaf, .shape = shapes::linear});
                    if (k > nodes / 3 && k % 2 == 0 && k + 2 < nodes)
                        lipFlower(p, polar(at, way + side * 70, 7), way + side * 62, 25,
                                  mix(palettes::skyblue, palettes::lilac, 0.4), side);
                }
            }
        };
        sprig({{200, 344}, {160, 250}, {112, 170}, {96, 96}}, 15);
        sprig({{200, 344}, {246, 260}, {290, 180}, {308, 104}}, 15);
        sprig({{200, 350}, {203, 240}, {198, 54}}, 19);
    }};
