// Groundsel bush, Baccharis halimifolia: woody forking twigs, wedge leaves with a few coarse teeth towards
// the tip, and at the twigs' ends bunches of small heads like shaving brushes: white silk in green cups.

#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

namespace {

void brush(Plate& p, Point at, double degrees, double size) {
    const Point mouth = polar(at, degrees, size * 0.24);
    for (int layer = 0; layer < 2; ++layer)
        for (int k = -5; k <= 5; ++k) {
            const double x = k / 5.0;
            const Point base = mouth + rightOf(direction(degrees)) * (x * size * 0.1);
            leaflet(p, base,
                    polar(base, degrees + x * (36 - 10 * layer) + p.random.around(3),
                          size * (0.78 - 0.2 * layer) * p.random.uniform(0.88, 1.06)),
                    {.width = size * 0.06,
                     .palette = palettes::whiteflower,
                     .shape = {0.4, 0.6, 0.9, 1, 0.7, 0},
                     .tone = 0.04 + 0.16 * layer + 0.16 * x,
                     .contour = 0.7,
                     .hatched = false,
                     .midrib = false,
                     .shade = 0.1});
        }
    scales(p, at, degrees,
           {.radius = size * 0.13,
            .length = size * 0.3,
            .shape = {0.5, 1, 1, 0.95, 0.85},
            .rows = 4,
            .perRow = 5,
            .spread = 6});
}

void wedgeLeaf(Plate& p, Point at, double degrees, double size) {
    const Point foot = polar(at, degrees, size * 0.08);
    p.stroke({at, foot}, {.width = 2, .swell = 0, .fade = 0});
    leaf(p, {at, polar(at, degrees, size * 0.5), polar(at, degrees - (degrees < -90 ? -8 : 8), size)},
         {.width = size * 0.22,
          .shape = {0.06, 0.16, 0.4, 0.8, 1, 0.86, 0.5, 0.06},
          .margin = dentate(4, 0.26),
          .palette = mix(palettes::leaf, palettes::greygreen, 0.35),
          .veins = 4});
}

} // namespace

static const Subject subject{
    "day_051_bacchante", [](Plate& p) {
        struct Bunch {
            Path twig;
            double degrees;
            int heads;
        };
        const Bunch bunches[] = {{{{194, 262}, {150, 222}, {104, 180}}, -118, 3},
                                 {{{198, 246}, {244, 210}, {296, 172}}, -62, 3},
                                 {{{196, 352}, {200, 270}, {194, 190}, {200, 136}}, -90, 5}};
        for (const double q : {0.1, 0.3, 0.7})
            for (const double side : {-1.0, 1.0})
                wedgeLeaf(p, along(spline(bunches[2].twig), q + side * 0.04),
                          -90 + side * (q < 0.5 ? 72 : 58), q < 0.5 ? 92 : 58);
        for (const Bunch& b : {bunches[0], bunches[1]})
            for (const double side : {-1.0, 1.0})
                wedgeLeaf(p, along(spline(b.twig), 0.6 + side * 0.06), b.degrees + side * 66, 56);
        for (const Bunch& b : bunches) {
            const Point tip = b.twig.back();
            struct Head {
                Point at;
                double degrees, size;
            };
            std::vector<Head> heads;
            // From the rim to the middle, which lies uppermost.
            for (int k = b.heads - 1; k >= 0; --k) {
                const double rank = (k + 1) / 2 * (k % 2 == 0 ? 1.0 : -1.0);
                const double x = rank / (b.heads / 2.0), out = b.degrees + x * 66;
                heads.push_back({polar(tip, out, 34 - 8 * std::fabs(x)), out, 58});
            }
            for (const Head& head : heads)
                tube(p,
                     {tip, polar(tip, (head.degrees + b.degrees) / 2, 12), polar(head.at, head.degrees, 5)},
                     {1.9, 1.6});
            twig(p, b.twig, b.twig.size() > 3 ? Profile{5, 4, 2.4} : Profile{3.4, 2.8, 2});
            for (const Head& head : heads)
                brush(p, head.at, head.degrees, head.size);
        }
    }};
