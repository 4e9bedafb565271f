// Stone pine, Pinus pinea: a broad heavy cone opened by the fire, the nuts that fell from it, long needles
// in pairs.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Conifer.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_086_pignon", [](Plate& p) {
        ground(p, 70, 340, 306, 5);
        needleTufts(p, {{70, 110}, {120, 84}, {176, 66}, {230, 60}}, 7, 14, 92, palettes::leaf, 110);
        tube(p, {{70, 110}, {120, 84}, {176, 66}, {230, 60}}, {6, 5.4, 4.4, 3},
             {.palette = palettes::bark, .rough = 0.2});
        cone(p, {182, 306}, -90,
             {.length = 152,
              .radius = 66,
              .shape = {0.7, 0.98, 1, 0.96, 0.82, 0.6, 0.3},
              .rows = 9,
              .perRow = 7,
              .palette = mix(palettes::brown, palettes::tan, 0.3),
              .spread = 30,
              .scaleShape = shapes::orbicular});
        const auto kernel = [&](Point at, double degrees, double size, const Palette& palette) {
            lathe(p, polar(at, degrees, -15 * size), 32 * size,
                  {3 * size, 8 * size, 9.6 * size, 8.6 * size, 5 * size, 0.8},
                  {.direction = degrees, .tilt = 0.1, .palette = palette, .lines = Lines::along});
        };
        kernel({284, 292}, -160, 1.15, palettes::darkwood);
        kernel({318, 278}, -50, 1.1, palettes::brown);
        kernel({298, 314}, 10, 1.1, palettes::darkwood);
        kernel({98, 304}, -20, 1.1, palettes::brown);
        kernel({340, 308}, 150, 0.95, palettes::cream);
        kernel({266, 318}, 170, 0.9, palettes::cream);
    }};
