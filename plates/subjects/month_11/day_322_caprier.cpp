// Caper, Capparis spinosa: round leaves, large white four-petalled flowers with a burst of long violet
// stamens, green buds.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Leaf.h"

#include <tuple>

using namespace tambrelle::engraver;

static const Subject subject{
    "day_322_caprier", [](Plate& p) {
        const LeafKind round{.shape = shapes::orbicular,
                             .veins = 4,
                             .petiole = 0.16,
                             .palette = palettes::bluegreen,
                             .stalk = palettes::redstem};
        const Path cane = stem(p, {{70, 316}, {140, 250}, {210, 176}, {300, 106}, {338, 66}}, {4, 3.2, 1.8},
                               palettes::redstem);
        for (const auto& [q, a, size] :
             {std::tuple{0.1, -130.0, 74.0}, std::tuple{0.1, 36.0, 76.0}, std::tuple{0.3, -140.0, 74.0},
              std::tuple{0.3, 48.0, 76.0}, std::tuple{0.55, 50.0, 74.0}, std::tuple{0.76, -140.0, 62.0},
              std::tuple{0.74, 52.0, 66.0}, std::tuple{0.92, 30.0, 54.0}, std::tuple{0.95, -120.0, 48.0}})
            growLeaf(p, along(cane, q), a, size, size * 0.34, round);
        const auto blossom = [&](double q, Point at, double degrees, double scale) {
            stem(p, {along(cane, q), lerp(along(cane, q), at, 0.5) + Point{-3, 0}, at}, {1.7, 1.5});
            flower(p, at, degrees,
                   {.petals = 4,
                    .length = 46,
                    .width = 27,
                    .baseAngle = 62,
                    .tipAngle = 88,
                    .shape = shapes::orbicular,
                    .palette = palettes::whiteflower,
                    .ruffle = 1.5,
                    .tilt = 52,
                    .roll = 20,
                    .sepals = 4,
                    .washLift = 0},
                   scale);
            for (int k = 0; k < 26; ++k) {
                const double a = degrees + (k - 12.5) * 5.4;
                const Point tip = polar(at, a, (52 + p.random.around(7)) * scale);
                p.stroke(spline({polar(at, degrees, 6), polar(at, degrees + (a - degrees) * 0.8, 28 * scale),
                                 tip}),
                         {.width = 0.9, .swell = 0, .fade = 0, .colour = Colour(0x7A4A9A)});
                p.dot(tip, 1.9, Colour(0x5C3480));
            }
        };
        blossom(0.5, {168, 122}, -112, 1.1);
        const auto budAt = [&](double q, Point at) {
            stem(p, {along(cane, q), lerp(along(cane, q), at, 0.5) + Point{2, 2}, at}, {1.4, 1.3});
            ball(p, at + Point{0, -7}, 9.5, {.palette = palettes::leafy, .squash = 1.15});
        };
        budAt(0.8, {246, 84});
        budAt(0.42, {250, 252});
        budAt(0.9, {284, 64});
        blossom(0.66, {288, 190}, -20, 0.8);
    }};
