// Elder, Sambucus nigra: pinnate leaves of five toothed leaflets, flat drooping umbels of small black
// berries on red stalks.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_257_sureau", [](Plate& p) {
        twig(p, {{198, 40}, {204, 80}, {200, 126}}, {7, 5.4, 4});
        const LeafKind feather{.build = LeafKind::Build::pinnate,
                               .shape = shapes::elliptic,
                               .margin = serrate(10, 0.14),
                               .veins = 7,
                               .petiole = 0.2,
                               .leaflets = 2,
                               .leafletWidth = 0.2};
        growLeaf(p, {203, 74}, 174, 148, 40, feather, -14);
        growLeaf(p, {204, 74}, 6, 148, 40, feather, 14);
        const Point hub{200, 122};
        tube(p, {hub + Point{0, -4}, hub + Point{1, 28}, {200, 172}}, {3.2, 3},
             {.palette = palettes::redstem});
        std::vector<Point> fruits;
        for (int k = 0; k < 5; ++k) {
            const double a = 90 + (k - 2) * 38.0;
            const Point knot = polar({200, 170}, a, 56);
            tube(p, {{200, 168}, lerp({200, 168}, knot, 0.5) + Point{0, -4}, knot}, {2.2, 1.5},
                 {.palette = palettes::redstem});
            for (int i = 0; i < 7; ++i) {
                const double b = a + (i - 3) * 34.0;
                const Point end = polar(knot, b, 26 + (i % 2) * 13);
                tube(p, {knot, lerp(knot, end, 0.5), end}, {1.1, 0.8},
                     {.palette = palettes::redstem, .shade = 0.1});
                for (const double c : {-44.0, 0.0, 44.0}) {
                    const Point berry = polar(end, b + c, 10);
                    p.stroke({end, berry}, {.width = 1.2, .swell = 0, .fade = 0, .colour = 0x8E3040});
                    fruits.push_back(berry);
                }
            }
        }
        for (const Point at : fruits)
            ball(p, at, 6 + p.random.around(0.5),
                 {.palette = palettes::berry, .direction = -80, .tone = 0.1, .highlight = 0.22});
    }};
