// Chard, Beta vulgaris var. cicla: huge puckered glossy leaves on broad white fleshy ribs.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_186_bette", [](Plate& p) {
        struct Blade {
            Path spine;
            double width, right, left;
            Palette palette;
        };
        ground(p, 130, 280, 336, 4);
        for (const Blade& b :
             {Blade{{{190, 300}, {150, 226}, {112, 160}, {84, 92}}, 50, 0.8, 1, palettes::leaf},
              Blade{{{210, 300}, {250, 226}, {290, 162}, {318, 92}}, 50, 1, 0.8, palettes::darkleaf},
              Blade{{{200, 304}, {203, 220}, {198, 130}, {202, 36}}, 60, 1, 0.95, palettes::leaf}}) {
            const Path curve = spline(b.spine, 30);
            leaf(p, {along(curve, 0.3), along(curve, 0.5), along(curve, 0.75), along(curve, 1)},
                 {.width = b.width,
                  .shape = {0.34, 0.8, 1, 0.98, 0.8, 0.5, 0},
                  .margin = wavy(6, 0.12),
                  .palette = b.palette,
                  .veins = 8,
                  .right = b.right,
                  .left = b.left,
                  .pucker = 0.34});
            const Point foot = b.spine.front() + Point{0, 30};
            tube(p, {foot, along(curve, 0.12), along(curve, 0.36), along(curve, 0.62), along(curve, 0.86)},
                 {17, 15, 11, 5, 1.2},
                 {.palette = palettes::whiteflower, .lines = Lines::along, .spacing = 2.8, .tone = 0.04});
        }
    }};
