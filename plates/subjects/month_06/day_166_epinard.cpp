// Spinach, Spinacia oleracea: a tuft of dark puckered arrow-shaped leaves, barbed at the base, on long stalks
// over a pink root.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_166_epinard", [](Plate& p) {
        lathe(p, {200, 280}, 62, {11, 13, 9, 5, 1},
              {.direction = 90, .palette = mix(palettes::rose, palettes::root, 0.35)});
        rootlets(p, {200, 322}, 8, 90, 80, 16);
        const auto arrow = [&](double degrees, double stalk, double size, const Palette& palette) {
            const Point foot{200, 288}, at = polar(foot, degrees, stalk);
            stem(p, {foot, lerp(foot, at, 0.5) + Point{0, -4}, polar(at, degrees, 6)}, {4, 3},
                 palettes::leafy);
            // The barbs lie under the blade.
            for (const double side : {-1.0, 1.0})
                leaf(p,
                     {polar(at, degrees, size * 0.16), polar(at, degrees + side * 100, size * 0.2),
                      polar(at, degrees + side * 122, size * 0.44)},
                     {.width = size * 0.15,
                      .shape = {0.8, 1, 0.85, 0.5, 0.04},
                      .palette = palette,
                      .veins = 2,
                      .pucker = 0.24});
            leaf(p, {at, polar(at, degrees, size * 0.5), polar(at, degrees, size)},
                 {.width = size * 0.29,
                  .shape = {0.5, 0.92, 1, 0.98, 0.84, 0.56, 0.26, 0.02},
                  .palette = palette,
                  .veins = 6,
                  .pucker = 0.3});
        };
        arrow(-166, 88, 74, palettes::darkleaf);
        arrow(-14, 88, 74, palettes::darkleaf);
        arrow(-113, 128, 92, palettes::darkleaf);
        arrow(-67, 128, 92, palettes::darkleaf);
        arrow(-139, 106, 84, palettes::leaf);
        arrow(-41, 106, 84, palettes::leaf);
        arrow(-90, 92, 96, palettes::leaf);
    }};
