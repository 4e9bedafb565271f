// Onion, Allium cepa: a broad papery bulb with a root disc, hollow round leaves, a globe of greenish-white
// stars.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_273_oignon", [](Plate& p) {
        for (const auto& [x, y, w] :
             {std::tuple{92.0, 130.0, 6.4}, {310.0, 124.0, 6.4}, {140.0, 92.0, 7.0}, {268.0, 100.0, 7.0}})
            tube(p, {{200, 226}, {200 + (x - 200) * 0.4, 170}, {x, y}}, {w * 0.8, w, 1},
                 {.palette = palettes::bluegreen, .lines = Lines::along});
        tube(p, {{200, 226}, {198, 160}, {202, 66}}, {6, 7.5, 4.5},
             {.palette = palettes::bluegreen, .lines = Lines::along});
        globeHead(p, {202, 72}, -90,
                  {.radius = 36,
                   .petal = 9,
                   .petalWidth = 3,
                   .count = 110,
                   .palette = palettes::whiteflower,
                   .stars = true});
        rootlets(p, {200, 336}, 22, 90, 100, 24);
        lathe(p, {200, 338}, 124, {5, 40, 61, 66, 60, 42, 20, 10, 8},
              {.tilt = 0.06,
               .palette = mix(palettes::copper, palettes::yellow, 0.25),
               .lines = Lines::along,
               .spacing = 2.6,
               .highlight = 0.2});
    }};
