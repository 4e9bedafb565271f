// Celery, Apium graveolens: a bundle of thick ribbed leaf stalks that clasp one another, cut pinnate leaves
// with wedge leaflets above.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_032_celeri", [](Plate& p) {
        const LeafKind top{.build = LeafKind::Build::pinnate,
                           .shape = {0.1, 0.5, 0.9, 1, 0.75, 0},
                           .margin = lobed(3, 0.35),
                           .veins = 4,
                           .petiole = 0.2,
                           .palette = palettes::leafy,
                           .leaflets = 2,
                           .leafletWidth = 0.4};
        rootlets(p, {200, 334}, 22, 90, 150, 20);
        struct Stalk {
            double foot, tip, height, degrees;
        };
        for (const Stalk& s : {Stalk{-16, -52, 150, -118}, Stalk{16, 52, 150, -62}, Stalk{-6, -20, 168, -98},
                               Stalk{8, 22, 166, -80}, Stalk{-26, -78, 118, -140}, Stalk{26, 80, 118, -40},
                               Stalk{-10, -34, 126, -112}, Stalk{12, 36, 122, -66}, Stalk{0, 2, 132, -90}}) {
            const Point foot{200 + s.foot, 322}, tip{200 + s.tip, 322 - s.height};
            growLeaf(p, tip + Point{0, 6}, s.degrees, 96, 30, top);
            tube(p,
                 {foot,
                  {200 + s.foot * 1.25, 280},
                  {200 + s.foot + (s.tip - s.foot) * 0.55, 322 - s.height * 0.6},
                  tip},
                 {13, 12, 8.5, 4.6},
                 {.palette = mix(palettes::leafy, palettes::cream, 0.5),
                  .lines = Lines::along,
                  .spacing = 2.6,
                  .tone = 0.04});
        }
        tube(p, {{178, 322}, {200, 328}, {222, 322}}, {7, 10, 7}, {.palette = palettes::cream, .rough = 0.1});
    }};
