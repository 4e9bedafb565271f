// Groundsel bush, Baccharis halimifolia: a woody twig, wedge leaves with a few coarse teeth, heads like
// small shaving brushes of white silk.

#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_051_bacchante", [](Plate& p) {
        const auto brush = [](Plate& plate, Point at, double degrees, double scale, int) {
            Path fan{polar(at, degrees - 90, 4 * scale)};
            for (int k = -4; k <= 4; ++k)
                fan.push_back(polar(at, degrees + k * 7.5, (k % 2 == 0 ? 30 : 26) * scale));
            fan.push_back(polar(at, degrees + 90, 4 * scale));
            plate.knockOut(fan);
            plate.flat(fan, palettes::whiteflower, 0.12);
            plate.contour(fan, 0.7);
            for (int k = -3; k <= 3; ++k)
                plate.stroke(
                    {polar(at, degrees + k * 5.0, 8 * scale), polar(at, degrees + k * 7.5, 26 * scale)},
                    {.width = 0.5});
            scales(plate, polar(at, degrees, -2), degrees,
                   {.radius = 5, .length = 12, .rows = 4, .perRow = 6}, scale);
        };
        const LeafKind wedge{.shape = {0.08, 0.25, 0.55, 0.95, 0.9, 0.35, 0},
                             .margin = dentate(3, 0.3),
                             .veins = 3,
                             .petiole = 0.08,
                             .palette = palettes::greygreen};
        const auto shoot = [&](const Path& spine, double size) {
            const Path curve = twig(p, spine, {4.4, 3.2, 1.8});
            for (int k = 0; k < 8; ++k) {
                const double q = 0.12 + 0.1 * k;
                growLeaf(p, along(curve, q), angleAlong(curve, q) + (k % 2 == 0 ? 50 : -50),
                         (74 - 3.6 * k) * size, (16 - 0.6 * k) * size, wedge);
            }
            panicle({.flower = brush,
                     .from = 0.6,
                     .branches = 8,
                     .perBranch = 1,
                     .width = 40 * size,
                     .angle = 46,
                     .largest = size,
                     .smallest = 0.8 * size})(p, curve);
        };
        shoot({{196, 338}, {160, 262}, {128, 180}, {118, 128}}, 0.86);
        shoot({{206, 338}, {246, 262}, {276, 184}, {290, 136}}, 0.86);
        shoot({{200, 344}, {204, 250}, {198, 160}, {202, 84}}, 1);
    }};
