// Water chestnut, Trapa natans: a floating rosette of rhombic toothed leaves on swollen stalks; below, the
// black nut with its four horns.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Maths.h"
#include "plates/engraver/Path.h"
#include "plates/engraver/Relief.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/botany/Roots.h"

#include <cmath>

using namespace tambrelle::engraver;

static const Subject subject{
    "day_042_macre", [](Plate& p) {
        const Point middle{200, 116};
        waterLines(p, 60, 340, 158, 7);
        for (int ring = 0; ring < 2; ++ring)
            for (int k = 0; k < 11; ++k) {
                const double a = -90 + (k % 2 == 0 ? 1 : -1) * ((k + 1) / 2) * 360.0 / 11 + ring * 16;
                const double c = maths::cos(maths::radians(a)), s = maths::sin(maths::radians(a));
                const double reach = ring == 0 ? 122 : 74, stalk = ring == 0 ? 62 : 26;
                const Point from = middle + Point{c * stalk, s * stalk * 0.46},
                            to = middle + Point{c * reach, s * reach * 0.46};
                tube(p, {middle, lerp(middle, from, 0.5), from}, {1.6, 3.4, 1.8},
                     {.palette = palettes::redstem});
                leaf(p, {from, lerp(from, to, 0.5), to},
                     {.width = 12 + 10 * std::fabs(s),
                      .shape = {0.05, 0.5, 1, 0.8, 0.4, 0},
                      .margin = dentate(6, 0.16),
                      .palette = ring == 0 ? palettes::leaf : palettes::leafy,
                      .veins = 4,
                      .slant = 0.3});
            }
        const Palette dark = mix(palettes::black, palettes::earth, 0.35);
        tube(p, {{200, 128}, {204, 176}, {198, 204}, {200, 232}}, {1.8, 1.6}, {.palette = palettes::redstem});
        for (int k = 0; k < 7; ++k)
            rootlets(p, {202, 170 + 8.0 * k}, 2, k % 2 == 0 ? 20 : 160, 40, 20);
        const auto horn = [&](const Path& spine) {
            tube(p, spine, {13, 8, 4, 0.5}, {.palette = dark, .tone = -0.1});
        };
        horn({{166, 262}, {128, 252}, {104, 228}, {94, 206}});
        horn({{234, 262}, {272, 252}, {296, 228}, {306, 206}});
        relief(p,
               closedSpline({{184, 234},
                             {216, 234},
                             {238, 252},
                             {248, 276},
                             {228, 300},
                             {200, 318},
                             {172, 300},
                             {152, 276},
                             {162, 252}}),
               {.palette = dark, .bevel = 50, .tone = -0.08, .creases = false});
        lathe(p, {200, 244}, 16, {13, 10, 12}, {.direction = -90, .tilt = 0.5, .palette = dark});
        tube(p, {{186, 272}, {158, 292}, {140, 316}}, {11, 6, 0.5}, {.palette = dark, .tone = -0.1});
        tube(p, {{214, 272}, {242, 292}, {260, 316}}, {11, 6, 0.5}, {.palette = dark, .tone = -0.1});
    }};
