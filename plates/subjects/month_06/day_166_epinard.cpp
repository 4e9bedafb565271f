// Spinach, Spinacia oleracea: a tuft of arrow-shaped leaves on long stalks over a pink root.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_166_epinard", [](Plate& p) {
        lathe(p, {200, 272}, 66, {13, 15, 10, 5, 1},
              {.direction = 90, .palette = mix(palettes::rose, palettes::root, 0.35)});
        rootlets(p, {200, 320}, 8, 90, 80, 16);
        const auto arrow = [&](double degrees, double stalk, double size, const Palette& palette) {
            const Point foot{200, 280}, at = polar(foot, degrees, stalk);
            stem(p, {foot, lerp(foot, at, 0.5) + Point{0, -4}, at}, {4.4, 3.4}, palettes::leafy);
            leaf(p, {at, polar(at, degrees, size * 0.5), polar(at, degrees, size)},
                 {.width = size * 0.36,
                  .shape = {0.75, 1, 0.78, 0.72, 0.64, 0.4, 0},
                  .palette = palette,
                  .veins = 6,
                  .pucker = 0.24});
        };
        arrow(-158, 84, 76, palettes::darkleaf);
        arrow(-22, 84, 76, palettes::darkleaf);
        arrow(-112, 122, 84, palettes::leaf);
        arrow(-68, 122, 84, palettes::darkleaf);
        arrow(-136, 96, 80, palettes::leaf);
        arrow(-44, 96, 80, palettes::leaf);
        arrow(-90, 88, 88, palettes::leaf);
    }};
