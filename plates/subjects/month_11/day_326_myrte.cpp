// Myrtle, Myrtus communis: small glossy pointed leaves in pairs, white flowers with a brush of stamens,
// blue-black berries.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_326_myrte", [](Plate& p) {
        const LeafKind blade{
            .shape = shapes::lance, .veins = 5, .slant = 0.2, .petiole = 0.04, .palette = palettes::darkleaf};
        const Path cane = twig(p, {{84, 326}, {140, 250}, {206, 180}, {280, 110}, {322, 60}}, {4.2, 3, 1.6});
        const auto blossom = [&](double q, Point at, double degrees) {
            stem(p, {along(cane, q), at}, {1.2, 1.1});
            flower(p, at, degrees,
                   {.length = 23,
                    .width = 12,
                    .baseAngle = 70,
                    .tipAngle = 94,
                    .shape = shapes::orbicular,
                    .palette = palettes::whiteflower,
                    .tilt = 60,
                    .eye = 2.4,
                    .stamens = 30,
                    .stamenLength = 0.95,
                    .sepals = 5,
                    .washLift = 0});
        };
        const auto berry = [&](double q, Point at, double degrees) {
            stem(p, {along(cane, q), at}, {1.2, 1.1});
            const Point c = polar(at, degrees, 12);
            ball(p, c, 12, {.palette = palettes::berry, .direction = degrees, .squash = 1.2});
            for (const double a : {-60.0, -20.0, 20.0, 60.0})
                leaflet(p, polar(c, degrees, 11), polar(polar(c, degrees, 11), degrees + a, 7),
                        {.width = 2, .palette = palettes::berry});
        };
        for (int k = 0; k < 10; ++k) {
            const double q = 0.06 + k * 0.1, way = angleAlong(cane, q), size = 62 - k * 2.2;
            growLeaf(p, along(cane, q), way - 56, size, size * 0.2, blade);
            growLeaf(p, along(cane, q), way + 56, size, size * 0.2, blade);
        }
        growLeaf(p, cane.back(), -58, 38, 8, blade);
        blossom(0.44, {148, 150}, -130);
        blossom(0.66, {218, 96}, -120);
        blossom(0.52, {272, 202}, 10);
        berry(0.3, {196, 282}, 70);
        berry(0.38, {232, 258}, 60);
        berry(0.24, {88, 218}, -150);
        berry(0.74, {308, 146}, 40);
    }};
