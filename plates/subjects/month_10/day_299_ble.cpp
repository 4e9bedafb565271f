// Wheat, Triticum aestivum, an awnless variety: stout golden ears of plump spikelets set to right and left
// like a plait.

#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Cereal.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_299_ble", [](Plate& p) {
        const Palette gold = mix(palettes::straw, palettes::gold, 0.5);
        const auto grain = [&](Point at, double degrees, double bend, double size) {
            leaf(p, {at, polar(at, degrees, size * 0.5), polar(at, degrees - bend, size)},
                 {.width = size * 0.3,
                  .shape = {0.5, 0.95, 1, 0.84, 0.5, 0.06},
                  .palette = gold,
                  .veins = 0,
                  .parallel = true,
                  .contour = 0.85,
                  .midrib = 0.7});
        };
        const auto wheatEar = [&](const Path& stalk, const Path& spine, double size, int joints) {
            stem(p, stalk, {3, 2.6}, palettes::straw);
            const Path curve = spline(spine);
            // From the tip down, each spikelet lying over the foot of the next above.
            grain(along(curve, 0.97), angleAlong(curve, 1), 0, 28 * size);
            for (int k = joints - 1; k >= 0; --k) {
                const double q = 0.96 * k / joints, way = angleAlong(curve, q);
                const double side = k % 2 == 0 ? 1 : -1, taper = 1 - 0.28 * maths::pow(q, 3);
                const Point at = along(curve, q) + rightOf(direction(way)) * (side * 4 * size);
                const double reach = 34 * size * taper;
                grain(at, way + side * 52, side * 22, reach * 0.94);
                grain(at, way + side * 10, side * -8, reach * 0.9);
                grain(polar(at, way + 180, 3), way + side * 32, side * 16, reach);
            }
        };
        strapLeaf(p, {176, 304}, -152, 124, 8, 50, palettes::oldleaf);
        strapLeaf(p, {222, 312}, -30, 116, 8, 46, palettes::oldleaf);
        wheatEar({{190, 354}, {160, 290}, {130, 226}}, {{130, 226}, {108, 160}, {96, 92}}, 0.98, 12);
        wheatEar({{210, 354}, {240, 290}, {270, 230}}, {{270, 230}, {292, 166}, {304, 98}}, 0.98, 12);
        wheatEar({{200, 354}, {202, 290}, {200, 214}}, {{200, 214}, {198, 130}, {201, 54}}, 1.1, 13);
    }};
