// Stemless carline thistle, Carlina acaulis: a flat rosette of spiny cut leaves about one great head with
// silvery papery rays.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_321_carline", [](Plate& p) {
        const Point heart{200, 196};
        for (int ring = 0; ring < 2; ++ring)
            for (int k = 0; k < 11; ++k) {
                const double a = k * 360.0 / 11 + ring * 16 + p.random.around(3);
                const double size = ring == 0 ? 132 : 104;
                const Point tip = heart + Point{direction(a).x * size, direction(a).y * size * 0.84};
                leaf(p, {heart, lerp(heart, tip, 0.55), tip},
                     {.width = 21,
                      .shape = {0.5, 0.7, 0.9, 1, 0.8, 0},
                      .margin = serrate(8, 0.62),
                      .palette = ring == 0 ? palettes::leaf : palettes::bluegreen,
                      .veins = 8,
                      .slant = 0.12});
            }
        compositeHead(p, heart, -90,
                      {.rays = 44,
                       .length = 46,
                       .width = 4,
                       .shape = {0.7, 0.9, 1, 0.9, 0.6, 0},
                       .palette = palettes::silver,
                       .rings = 2,
                       .disc = 31,
                       .dome = 0.18,
                       .discPalette = palettes::fawn,
                       .baseAngle = 74,
                       .tipAngle = 92,
                       .notch = 0,
                       .tilt = 70,
                       .involucre = 0});
    }};
