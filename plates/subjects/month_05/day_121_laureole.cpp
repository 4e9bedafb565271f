// Spurge laurel, Daphne laureola: glossy lance leaves crowded at the top of a bare stem, clusters of
// drooping yellow-green four-lobed tubes beneath them.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_121_laureole", [](Plate& p) {
        stem(p, {{196, 344}, {204, 290}, {198, 240}, {201, 160}}, {6.5, 5.4, 4},
             mix(palettes::stem, palettes::bark, 0.5));
        const LeafForm back{.width = 15,
                            .shape = {0.1, 0.35, 0.65, 0.95, 1, 0.75, 0},
                            .palette = palettes::darkleaf,
                            .veins = 8};
        for (const double a : {-172.0, -8.0, -150.0, -30.0, -128.0, -52.0, -106.0, -74.0}) {
            const Point from = polar({200, 168}, a, 4);
            leaf(p,
                 {from, polar(from, a - (a < -90 ? 6 : -6), 62),
                  polar(from, a - (a < -90 ? 14 : -14) * 0.8, 122)},
                 back);
        }
        const FlowerForm trumpet{.petals = 4,
                                 .length = 11,
                                 .width = 5,
                                 .baseAngle = 58,
                                 .tipAngle = 86,
                                 .shape = shapes::ovate,
                                 .palette = palettes::leafy,
                                 .tilt = 26,
                                 .tube = 20,
                                 .tubeRadius = 3.2,
                                 .eye = 2,
                                 .washLift = 0.04};
        for (const double side : {-1.0, 1.0})
            for (const double x : {46.0, 30.0, 16.0}) {
                const Point knee{200 + side * x * 0.8, 184 + 8 - x * 0.2},
                    tip{200 + side * x * 1.15, 214 + 10 - x * 0.3};
                stem(p, {{200, 178}, knee, tip}, {1.5, 1.2});
                flower(p, tip, 90 - side * x * 0.9, trumpet, 1.15);
            }
        LeafForm front = back;
        front.palette = mix(palettes::darkleaf, palettes::leaf, 0.5);
        front.width = 14;
        for (const double a : {-140.0, -40.0, -90.0}) {
            const Point from = polar({200, 170}, a, 3);
            leaf(p,
                 {from, polar(from, a, 50),
                  polar(from,
                        a + (a < -90   ? -10
                             : a > -90 ? 10
                                       : 3),
                        96)},
                 front);
        }
        for (const double side : {-1.0, 1.0})
            leaf(p, {{200 + side * 2, 178}, {200 + side * 50, 184}, {200 + side * 98, 226}}, front);
    }};
