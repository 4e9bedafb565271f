// Filbert, Corylus maxima: nuts wrapped in a husk that is drawn out beyond them into a long fringed tube, one
// husk torn on its nut; round doubly toothed leaves.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Branch.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_134_avelinier", [](Plate& p) {
        branch(p, {.spine = {{60, 84}, {150, 64}, {240, 72}, {340, 54}},
                   .radius = {5.4, 4.4, 2.6},
                   .leaf = {.shape = shapes::orbicular,
                            .margin = serrate(13, 0.14),
                            .veins = 7,
                            .pucker = 0.22,
                            .petiole = 0.12},
                   .leaves = {
                       {0.1, 112, 124, 46}, {0.34, -122, 76, 29}, {0.7, -54, 74, 28}, {0.88, 66, 124, 46}}});
        const auto fringe = [&](Point mouth, double degrees, double breadth, double size) {
            for (const int k : {-3, 3, -2, 2, -1, 1, 0}) {
                const double f = k / 3.0;
                const Point from = polar(mouth + rightOf(direction(degrees)) * (-f * breadth), degrees, -8);
                leaf(p,
                     {from, polar(from, degrees + f * 14, size * 0.5), polar(from, degrees + f * 30, size)},
                     {.width = size * 0.2,
                      .shape = {0.9, 1, 0.85, 0.5, 0},
                      .margin = serrate(3, 0.4),
                      .palette = palettes::leafy,
                      .veins = 2,
                      .tone = 0.08 * f});
            }
        };
        const Palette green = mix(palettes::leafy, palettes::leaf, 0.4);
        const auto husked = [&](Point at, double degrees, double size) {
            lathe(p, at, size, {9, 25, 32, 31, 24, 17, 15, 17, 21},
                  {.direction = degrees, .tilt = 0.2, .palette = green, .lines = Lines::along});
            fringe(polar(at, degrees, size), degrees, 17, 34);
        };
        stem(p, {{200, 68}, {202, 84}, {200, 104}}, {3.2, 3.6});
        husked({206, 106}, 66, 138);
        husked({196, 106}, 112, 138);
        // The torn husk: its lower half is gone, and the nut shows.
        nut(p, {200, 124}, 90, 28, 66, palettes::ginger, false);
        for (const int k : {-2, 2, -1, 1, 0}) {
            const Point from{200 - k * 11.0, 106};
            leaf(p, {from, from + Point{-k * 5.0, 20}, from + Point{-k * 7.0, 46.0 - 5 * std::abs(k)}},
                 {.width = 12,
                  .shape = {0.8, 1, 0.95, 0.7, 0},
                  .margin = serrate(3, 0.4),
                  .palette = palettes::leafy,
                  .veins = 2});
        }
        ground(p, 166, 240, 326, 3);
        nut(p, {204, 318}, -90, 21, 46, palettes::ginger);
    }};
