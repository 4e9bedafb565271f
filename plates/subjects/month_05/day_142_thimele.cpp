// Thymelaea: wiry twigs clothed in tiny overlapping scale leaves, small yellow four-lobed flowers among them.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Conifer.h"
#include "plates/engraver/botany/Flower.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_142_thimele", [](Plate& p) {
        const auto shoot = [&](const Path& spine, double sides) {
            const Path curve = spline(spine);
            scaleTwig(p, spine, sides, 9, 3.2, palettes::greygreen);
            for (int k = 0; k < 8; ++k) {
                const double q = 0.3 + 0.095 * k;
                for (const double turn : {-90.0, 90.0})
                    flower(p, polar(along(curve, q), angleAlong(curve, q) + turn, 5 + (k % 2) * 7),
                           angleAlong(curve, q) + turn * 0.7,
                           {.petals = 4,
                            .length = 11,
                            .width = 5.6,
                            .baseAngle = 62,
                            .tipAngle = 86,
                            .shape = shapes::ovate,
                            .palette = palettes::yellow,
                            .tilt = 58,
                            .tube = 5,
                            .eye = 2,
                            .eyePalette = palettes::orange,
                            .washLift = 0.22},
                           1.08 - 0.25 * q);
            }
        };
        twig(p, {{206, 350}, {198, 322}, {202, 280}}, {6, 5});
        shoot({{200, 316}, {160, 250}, {112, 190}, {92, 120}}, 40);
        shoot({{202, 316}, {244, 250}, {288, 194}, {310, 124}}, 40);
        shoot({{201, 300}, {206, 220}, {196, 140}, {204, 62}}, 44);
    }};
