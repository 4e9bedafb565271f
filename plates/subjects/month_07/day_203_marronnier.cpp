// Horse chestnut, Aesculus hippocastanum: leaves of seven leaflets, an upright white candle, a spiny husk
// with its nut.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Branch.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_203_marronnier", [](Plate& p) {
        const LeafKind hand{.build = LeafKind::Build::digitate,
                            .shape = {0.1, 0.3, 0.6, 0.9, 1, 0.6, 0},
                            .margin = serrate(12, 0.1),
                            .veins = 10,
                            .petiole = 0.3,
                            .leaflets = 7,
                            .leafletWidth = 0.17};
        twig(p, {{200, 336}, {198, 280}, {200, 216}}, {7, 5, 3.6});
        growLeaf(p, {200, 250}, 168, 158, 14, hand, -8);
        growLeaf(p, {200, 250}, 12, 158, 14, hand, 8);
        const FlowerForm white{.length = 14.5,
                               .width = 8.4,
                               .baseAngle = 60,
                               .tipAngle = 92,
                               .palette = palettes::whiteflower,
                               .tilt = 56,
                               .eye = 2.8,
                               .eyePalette = palettes::rose,
                               .stamens = 5,
                               .stamenLength = 1.1,
                               .antherPalette = palettes::red,
                               .washLift = 0};
        const Path candle = stem(p, {{200, 230}, {201, 140}, {200, 44}}, {3.6, 1.8});
        panicle({.flower = flowers(white),
                 .from = 0.16,
                 .branches = 9,
                 .perBranch = 5,
                 .width = 46,
                 .angle = 62,
                 .smallest = 0.66})(p, candle);
        const Point fruit{288, 300};
        stem(p, {{202, 270}, {240, 256}, {284, 272}}, {2.6, 3});
        ball(p, fruit, 33, {.palette = palettes::leafy, .tone = 0.05});
        for (int k = 0; k < 46; ++k) {
            const double a = p.random.uniform(0, 360);
            thorn(p, polar(fruit, a, 32 * maths::pow(p.random.uniform(0.1, 1), 0.5)), a, 9, palettes::leafy);
        }
        const Path gape = closedSpline({{268, 296}, {290, 282}, {310, 300}, {298, 322}, {276, 320}});
        p.flat(gape, palettes::cream, 0.3);
        p.contour(gape, 0.9);
        ball(p, {289, 303}, 17, {.palette = palettes::chestnut, .tone = 0.08, .highlight = 0.3});
    }};
