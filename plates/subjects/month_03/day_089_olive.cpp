// Olive, Olea europaea: narrow leathery leaves in pairs, grey-green above and silver beneath, smooth oval
// fruits from green to violet-black.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Maths.h"
#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_089_olive", [](Plate& p) {
        const Path spine{{62, 96}, {136, 76}, {226, 96}, {338, 70}};
        const LeafKind above{.shape = shapes::lance,
                             .veins = 0,
                             .petiole = 0.06,
                             .palette = mix(palettes::greygreen, palettes::leaf, 0.5)};
        LeafKind beneath = above;
        beneath.palette = mix(palettes::greygreen, palettes::silver, 0.5);
        const Path curve = spline(spine);
        for (int k = 0; k < 7; ++k) {
            const double q = 0.06 + 0.148 * k, way = angleAlong(curve, q);
            growLeaf(p, along(curve, q), way - 56, 88 - 2.0 * k, 11, k % 2 == 0 ? above : beneath, 12);
            growLeaf(p, along(curve, q), way + 60, 94 - 3.0 * k, 11, k % 2 == 0 ? beneath : above, -12);
        }
        growLeaf(p, curve.back(), -6, 62, 9, above);
        twig(p, spine, {5, 4, 2.4}, mix(palettes::bark, palettes::greygreen, 0.4));
        const auto olive = [&](double q, Point at, double size, const Palette& palette) {
            const Point from = along(curve, q);
            stem(p, {from, lerp(from, at, 0.5) + Point{2, 0}, at}, {1.6, 1.6});
            lathe(p, at + Point{0, -2}, 72 * size,
                  Profile(+[](double r) {
                      return 2 + 24 * maths::pow(maths::sin(maths::pi * maths::pow(r, 0.95)), 0.62);
                  }).times(size),
                  {.direction = 92, .tilt = 0.1, .palette = palette, .lines = Lines::along});
        };
        const Palette dark = mix(palettes::grape, palettes::berry, 0.5);
        olive(0.24, {124, 150}, 1.0, palettes::leafy);
        olive(0.62, {258, 158}, 1.0, mix(palettes::leafy, palettes::grape, 0.55));
        olive(0.4, {176, 166}, 1.16, dark);
        olive(0.5, {222, 198}, 1.16, palettes::leafy);
    }};
