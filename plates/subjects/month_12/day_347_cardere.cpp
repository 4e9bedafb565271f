// Teasel, Dipsacus: an egg-shaped bristling head with a belt of lilac florets and long curved bracts; prickly
// stem, paired leaves joined into a cup.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_347_cardere", [](Plate& p) {
        const FlowerAt head = [](Plate& plate, Point at, double degrees, double scale, int) {
            const double size = 78 * scale;
            for (const double a : {-118.0, 118.0, -84.0, 84.0, -52.0, 52.0}) {
                const Point mid = polar(at, degrees + a, 30 * scale);
                const Point end = polar(mid, degrees + a * 0.25, 38 * scale);
                tube(plate, {at, mid, end}, {1.8, 1.6, 0.5}, {.palette = palettes::straw});
            }
            for (int k = 0; k < 30; ++k) {
                const double q = 0.06 + 0.9 * (k / 2) / 14.0;
                const double side = k % 2 == 0 ? 1 : -1;
                const double half = 27 * scale * maths::sin(3.14159 * (0.12 + 0.8 * q));
                const Point from = polar(polar(at, degrees, q * size), degrees + side * 90, half);
                plate.stroke({from, polar(from, degrees + side * (62 - 40 * q), 14 * scale)},
                             {.width = 1, .swell = 0, .fade = 0.8});
            }
            scales(plate, at, degrees,
                   {.radius = 27,
                    .length = 78,
                    .shape = {0.55, 0.9, 1, 0.95, 0.8, 0.45},
                    .rows = 13,
                    .perRow = 13,
                    .scaleShape = shapes::lance,
                    .palette = palettes::burr,
                    .spread = 30,
                    .spines = true},
                   scale);
            for (int row = 0; row < 3; ++row)
                for (int k = 0; k < 9; ++k) {
                    const double f = (k - 4) / 4.2;
                    const Point c = polar(polar(at, degrees, (34 + row * 6 - 5 * (1 - f * f)) * scale),
                                          degrees + 90, f * 27 * scale);
                    floret(plate, c, 3.7 * scale, palettes::violet, 4, 0xE9DDF2);
                }
        };
        herb(p, {.foot = {200, 350},
                 .height = 200,
                 .stems = {-88, 88, 0},
                 .stemRadius = 3.6,
                 .tipRadius = 2.4,
                 .hairs = 60,
                 .leaf = {.shape = shapes::lance, .margin = crenate(9, 0.08), .veins = 7, .petiole = 0},
                 .arrangement = Arrangement::opposite,
                 .leaves = 2,
                 .leavesFrom = 0.2,
                 .leavesTo = 0.54,
                 .leafLength = 104,
                 .topLeafLength = 72,
                 .leafWidth = 16,
                 .topLeafWidth = 11,
                 .leafAngle = 58,
                 .inflorescence = solitary(head)});
    }};
