// Mandrake, Mandragora officinarum: a forked man-like root, a rosette of wavy leaves, violet bells and orange
// berries.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_171_mandragore", [](Plate& p) {
        const Palette skin = mix(palettes::root, palettes::tan, 0.4);
        for (const double s : {-1.0, 1.0}) {
            tube(p, {{200 + s * 10, 240}, {200 + s * 22, 286}, {200 + s * 26, 322}, {200 + s * 46, 362}},
                 {15, 13, 9, 2}, {.palette = skin, .rough = 0.06});
            tube(p, {{200 + s * 12, 182}, {200 + s * 44, 204}, {200 + s * 54, 238}, {200 + s * 80, 256}},
                 {9, 8, 6, 1.4}, {.palette = skin, .rough = 0.06});
        }
        lathe(p, {200, 156}, 104, {11, 18, 22, 20, 17, 19, 23, 19},
              {.direction = 90, .tilt = 0.1, .palette = skin});
        for (int k = 0; k < 9; ++k)
            rootlets(p, {184 + 4.0 * k, 200 + 14.0 * (k % 5)}, 1, k < 5 ? 160 : 20, 20, 14);
        for (const double a : {-178.0, -2.0, -154.0, -26.0, -128.0, -52.0, -104.0, -76.0}) {
            const Point from = polar({200, 158}, a, 5);
            leaf(p, {from, polar(from, a, 66), polar(from, a + (a < -90 ? -10 : 10), 128)},
                 {.width = 24,
                  .shape = {0.2, 0.5, 0.9, 1, 0.8, 0.4, 0},
                  .margin = wavy(6, 0.14),
                  .palette = a < -90 ? palettes::leaf : palettes::darkleaf,
                  .veins = 7,
                  .pucker = 0.26});
        }
        for (const double a : {-146.0, -96.0, -40.0}) {
            const Point tip = polar({200, 156}, a, 62);
            stem(p, {{200, 156}, tip}, {2.4, 2});
            bell(p, tip, a,
                 {.length = 34, .radius = 16, .palette = palettes::violet, .tilt = 34, .sepals = 5});
        }
        for (const Point at : {Point{168, 146}, Point{232, 146}, Point{200, 138}})
            ball(p, at, 15, {.palette = palettes::orange, .direction = -90});
    }};
