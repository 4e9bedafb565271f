// Cornelian cherry, Cornus mas, in flower: bare twigs set with small yellow umbels, each in four bracts.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Inflorescence.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_152_cornouiller", [](Plate& p) {
        const auto umbels = [&](const Path& curve, double q, double degrees) {
            const Point at = polar(along(curve, q), degrees, 7);
            stem(p, {along(curve, q), at}, {2, 2});
            for (const double a : {-70.0, 70.0, -25.0, 25.0})
                leaflet(p, at, polar(at, degrees + a, 15),
                        {.width = 5.4, .palette = palettes::oldleaf, .shape = shapes::ovate});
            const FlowerAt star = flowers({.petals = 4,
                                           .length = 9.5,
                                           .width = 4.2,
                                           .baseAngle = 74,
                                           .tipAngle = 96,
                                           .shape = shapes::lance,
                                           .palette = palettes::yellow,
                                           .tilt = 56,
                                           .stamens = 4,
                                           .stamenLength = 0.8,
                                           .washLift = 0.2});
            const Path axis = spline({at, polar(at, degrees, 3), polar(at, degrees, 6)});
            corymb({.flower = star, .count = 7, .spread = 190, .length = 24})(p, axis);
            corymb({.flower = star, .count = 3, .spread = 110, .length = 12})(p, axis);
        };
        const Path main = twig(p, {{76, 300}, {150, 236}, {236, 170}, {316, 76}}, {6, 4.6, 2.6});
        const Path side = twig(p, {along(main, 0.34), {176, 170}, {158, 96}}, {3.8, 2.4});
        const Path low = twig(p, {along(main, 0.42), {250, 238}, {318, 230}}, {3.8, 2.4});
        for (const double q : {0.12, 0.74})
            for (const double s : {-90.0, 90.0})
                umbels(main, q, angleAlong(main, q) + s);
        for (const double s : {-90.0, 90.0}) {
            umbels(side, 0.52, angleAlong(side, 0.52) + s);
            umbels(low, 0.56, angleAlong(low, 0.56) + s);
        }
        umbels(main, 1, -48);
        umbels(side, 1, -96);
        umbels(low, 1, 0);
    }};
