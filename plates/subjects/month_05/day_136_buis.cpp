// Box, Buxus sempervirens: small oval opposite leaves, close together; a clipped ball upon its stem.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Habit.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_136_buis", [](Plate& p) {
        const auto clipped = [&](Point foot) {
            ground(p, foot.x - 50, foot.x + 50, foot.y, 4);
            tube(p, {foot, foot + Point{2, -50}, foot + Point{0, -96}}, {7, 6, 6},
                 {.palette = palettes::bark, .rough = 0.1});
            foliageClump(p, foot + Point{0, -148}, 62, 62, palettes::darkleaf, 3);
        };
        clipped({118, 338});
        const auto spray = [&](const Path& spine, int pairs, double size) {
            const Path curve = twig(p, spine, {3, 1.8}, mix(palettes::stem, palettes::oldleaf, 0.5));
            for (int k = 0; k < pairs; ++k) {
                const double q = 0.12 + 0.86 * k / (pairs - 1.0), way = angleAlong(curve, q);
                for (const double turn : {-58.0, 58.0}) {
                    const Point at = along(curve, q), tip = polar(at, way + turn, size * (1.05 - 0.25 * q));
                    leaf(p, {at, lerp(at, tip, 0.5) + Point{0, -1}, tip},
                         {.width = size * 0.27,
                          .shape = shapes::elliptic,
                          .palette = (k + (turn > 0 ? 1 : 0)) % 3 == 0 ? palettes::leaf : palettes::darkleaf,
                          .veins = 0,
                          .contour = 0.8});
                }
            }
            leaf(p, {curve.back(), polar(curve.back(), -80, 13), polar(curve.back(), -84, 26)},
                 {.width = 8, .shape = shapes::elliptic, .palette = palettes::leafy, .veins = 0});
        };
        spray({{264, 262}, {228, 214}, {206, 150}}, 7, 34);
        spray({{264, 270}, {302, 226}, {330, 168}}, 7, 34);
        spray({{258, 340}, {266, 250}, {262, 160}, {276, 80}}, 11, 38);
    }};
