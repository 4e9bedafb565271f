// Watermelon, Citrullus lanatus: a large globe with dark ragged stripes; a wedge of red flesh with black
// seeds.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Gourd.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_341_pasteque", [](Plate& p) {
        ground(p, 68, 344, 278, 5);
        lathe(p, {172, 284}, 172, {8, 48, 66, 77, 84, 86, 84, 77, 66, 48, 10},
              {.tilt = 0.3,
               .palette = palettes::leafy,
               .lines = Lines::along,
               .tint = [](double u, double angle, double tone, Colour colour) {
                   const double wave = maths::cos(angle * 9 + 0.7 * maths::sin(u * 34) +
                                                  0.4 * maths::sin(u * 71 + angle * 3));
                   return wave > 0.1 ? ramp(palettes::darkleaf, 0.25 + 0.6 * tone) : colour;
               }});
        tendril(p, {176, 118}, -30, {.length = 34});
        stem(p, {{172, 126}, {168, 110}, {150, 100}}, {5, 4, 4});
        wedge(p, {290, 240},
              {.radius = 64,
               .rind = palettes::darkleaf,
               .flesh = palettes::scarlet,
               .rindWidth = 0.13,
               .seeds = 11,
               .seed = palettes::black,
               .turn = -6});
    }};
