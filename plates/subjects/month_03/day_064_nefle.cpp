// Medlar, Mespilus germanica: a flattened brown fruit with a wide open eye amid five long sepals; long
// leaves on a crooked twig.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Maths.h"
#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Branch.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_064_nefle", [](Plate& p) {
        branch(p, {.spine = {{72, 82}, {140, 60}, {220, 70}, {326, 50}},
                   .radius = {6, 5, 3},
                   .leaf = {.shape = {0.2, 0.6, 0.85, 1, 0.9, 0.55, 0},
                            .margin = serrate(18, 0.05),
                            .veins = 10,
                            .pucker = 0.22,
                            .petiole = 0.04},
                   .leaves = {{0.08, 116, 128, 21},
                              {0.3, -128, 84, 17},
                              {0.62, -52, 90, 17},
                              {0.88, 70, 132, 22},
                              {0.98, 8, 92, 18}}});
        const auto medlar = [&](Point at, double radius, double direction) {
            stem(p, {polar(at, direction + 180, radius * 1.05), polar(at, direction + 180, radius * 0.7)},
                 {3.4, 4.4}, palettes::bark);
            const LatheSurface fruit = lathe(p, polar(at, direction + 180, radius * 0.86), radius * 1.5,
                                             {radius * 0.2, radius * 0.62, radius * 0.88, radius,
                                              radius * 0.98, radius * 0.84, radius * 0.62},
                                             {.direction = direction,
                                              .tilt = 0.62,
                                              .palette = mix(palettes::brown, palettes::tan, 0.35),
                                              .lines = Lines::across});
            const Point eye = polar(at, direction, radius * 0.48);
            for (int k = 0; k < 30; ++k)
                p.dot(fruit.at(p.random.uniform(0.2, 0.8), p.random.uniform(20, 160)), 0.8,
                      palettes::tan.light);
            const Path hollow = ellipse(eye, radius * 0.5, radius * 0.37);
            p.flat(hollow, palettes::darkwood, 0.6);
            p.contour(hollow, 0.9);
            for (int k = 0; k < 16; ++k) {
                const double a = maths::radians(k * 22.5);
                const Point d{maths::cos(a) * radius, maths::sin(a) * radius};
                p.stroke({eye + Point{d.x * 0.46, d.y * 0.34}, eye + Point{d.x * 0.16, d.y * 0.12}},
                         {.width = 0.8});
            }
            for (int k = 0; k < 5; ++k) {
                const double a = maths::radians(k * 72.0 + 54);
                const Point d{maths::cos(a) * radius, maths::sin(a) * radius};
                leaflet(p, eye + Point{d.x * 0.44, d.y * 0.32}, eye + Point{d.x * 1.02, d.y * 0.82},
                        {.width = radius * 0.15,
                         .palette = palettes::oldleaf,
                         .shape = {0.9, 1, 0.7, 0.3, 0},
                         .contour = 0.7});
            }
        };
        medlar({166, 156}, 48, 104);
        medlar({246, 176}, 50, 78);
    }};
