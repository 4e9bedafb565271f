// Groundsel bush, Baccharis halimifolia: a woody twig, wedge leaves with a few coarse teeth, heads like
// small shaving brushes of white silk in green cups.

#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_051_bacchante", [](Plate& p) {
        const auto brush = [&](Point at, double degrees, double size) {
            const Point mouth = polar(at, degrees, size * 0.34);
            for (int layer = 0; layer < 3; ++layer)
                for (int k = -6; k <= 6; ++k) {
                    const double x = k / 6.0;
                    const Point base = mouth + rightOf(direction(degrees)) * (x * size * 0.13);
                    leaflet(p, base,
                            polar(base, degrees + x * (34 - 8 * layer) + p.random.around(3),
                                  size * (0.86 - 0.2 * layer) * p.random.uniform(0.88, 1.06)),
                            {.width = size * 0.042,
                             .palette = palettes::whiteflower,
                             .shape = {0.4, 0.6, 0.9, 1, 0.7, 0},
                             .tone = -0.1 + 0.12 * layer + 0.12 * x,
                             .contour = 0.45,
                             .hatched = false,
                             .midrib = false,
                             .shade = 0.1});
                }
            scales(p, at, degrees,
                   {.radius = size * 0.17,
                    .length = size * 0.4,
                    .shape = {0.6, 1, 1, 0.95, 0.85},
                    .rows = 5,
                    .perRow = 6,
                    .spread = 6});
        };
        const Path main{{196, 350}, {206, 270}, {196, 190}, {202, 110}};
        const Path curve = spline(main);
        const LeafKind wedge{.shape = {0.08, 0.25, 0.6, 1, 0.9, 0.4, 0},
                             .margin = dentate(3, 0.3),
                             .veins = 3,
                             .petiole = 0.06,
                             .palette = palettes::leaf};
        for (const auto& [q, degrees, size] : {std::tuple{0.12, -168.0, 104.0},
                                               {0.18, -14.0, 106.0},
                                               {0.34, -160.0, 112.0},
                                               {0.4, -24.0, 110.0},
                                               {0.55, -156.0, 92.0},
                                               {0.58, -26.0, 92.0}})
            growLeaf(p, along(curve, q), degrees, size, size * 0.21, wedge, degrees < -90 ? 5 : -5);
        struct Head {
            double from;
            Point at;
            double degrees, size;
        };
        const Head heads[] = {{0.6, {112, 176}, -138, 62},  {0.6, {288, 172}, -42, 62},
                              {0.72, {146, 118}, -114, 68}, {0.72, {256, 116}, -66, 68},
                              {0.8, {172, 164}, -122, 54},  {0.8, {232, 160}, -58, 54},
                              {0.96, {202, 98}, -90, 74}};
        for (const Head& h : heads) {
            const Point from = along(curve, h.from);
            tube(p, {from, lerp(from, h.at, 0.5) + Point{0, 8}, h.at}, {2.6, 2.2});
        }
        twig(p, main, {5, 4, 2.4});
        for (const Head& h : heads)
            brush(h.at, h.degrees, h.size);
    }};
