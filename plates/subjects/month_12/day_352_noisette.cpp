// Hazel, Corylus avellana: round double-toothed leaves, three nuts in ragged leafy husks.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Branch.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Leaf.h"

#include <cmath>

using namespace tambrelle::engraver;

static const Subject subject{
    "day_352_noisette", [](Plate& p) {
        const LeafKind round{.shape = shapes::orbicular,
                             .margin = serrate(12, 0.16),
                             .veins = 7,
                             .pucker = 0.24,
                             .petiole = 0.12};
        twig(p, {{74, 84}, {150, 66}, {236, 74}, {330, 56}}, {5, 4, 2.4});
        growLeaf(p, {98, 78}, 118, 104, 38, round);
        growLeaf(p, {150, 66}, -118, 70, 26, round);
        growLeaf(p, {240, 72}, -58, 74, 27, round);
        growLeaf(p, {270, 66}, 54, 112, 40, round);
        stem(p, {{190, 68}, {196, 90}, {198, 128}}, {3, 2.6});
        const auto husked = [&](Point at, double degrees, double size) {
            for (int k = 0; k < 5; ++k)
                leaf(p,
                     {at, polar(at, degrees + (k - 2) * 24, size * 0.8),
                      polar(at, degrees + (k - 2) * 32, size * 1.5)},
                     {.width = size * 0.36,
                      .shape = {0.6, 0.9, 1, 1, 0.6, 0},
                      .margin = serrate(3, 0.45),
                      .palette = palettes::leafy,
                      .veins = 3});
            const Point foot = polar(at, degrees, size * 0.3);
            lathe(p, foot, size * 1.42,
                  {size * 0.5, size * 0.72, size * 0.8, size * 0.78, size * 0.66, size * 0.4, size * 0.04},
                  {.direction = degrees,
                   .tilt = 0.1,
                   .palette = palettes::ginger,
                   .lines = Lines::along,
                   .spacing = 2,
                   .highlight = 0.16});
            p.stroke({polar(foot, degrees, size * 1.38), polar(foot, degrees, size * 1.54)},
                     {.width = 2, .swell = 0, .fade = 0.7});
            for (int k = 0; k < 5; ++k) {
                const double f = (k - 2) / 2.0;
                const Point from = polar(at, degrees + 90, f * size * 0.5);
                leaf(p,
                     {from, polar(from, degrees + f * 26, size * 0.4),
                      polar(from, degrees + f * 46, size * (0.66 + 0.24 * std::fabs(f)))},
                     {.width = size * 0.3,
                      .shape = {0.8, 1, 1, 0.9, 0.6, 0},
                      .margin = serrate(2.5, 0.5),
                      .palette = palettes::leafy,
                      .veins = 2});
            }
        };
        husked({192, 138}, 136, 46);
        husked({206, 138}, 46, 46);
        husked({199, 148}, 92, 50);
    }};
