// Privet, Ligustrum vulgare: opposite lance leaves, a cone of small white flowers, a cluster of black
// berries.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_154_troene", [](Plate& p) {
        const LeafKind blade{
            .shape = shapes::lance, .veins = 5, .petiole = 0.06, .palette = palettes::darkleaf};
        const auto shoot = [&](const Path& spine) {
            const Path curve = twig(p, spine, {4.4, 2.6});
            for (int k = 0; k < 5; ++k) {
                const double q = 0.14 + 0.15 * k;
                for (const double s : {-1.0, 1.0})
                    growLeaf(p, along(curve, q), angleAlong(curve, q) + s * 56, 78 - 6.0 * k, 13, blade,
                             s * 12);
            }
            return curve;
        };
        const Path left = shoot({{190, 346}, {160, 270}, {126, 190}, {116, 112}});
        const Path right = shoot({{206, 346}, {240, 270}, {276, 200}, {290, 130}});
        panicle({.flower = flowers({.petals = 4,
                                    .length = 9,
                                    .width = 5.4,
                                    .baseAngle = 66,
                                    .tipAngle = 88,
                                    .shape = shapes::ovate,
                                    .palette = palettes::whiteflower,
                                    .tilt = 54,
                                    .tube = 5,
                                    .washLift = 0}),
                 .from = 0.7,
                 .branches = 9,
                 .perBranch = 6,
                 .width = 46})(p, spline({along(left, 0.5), along(left, 0.8), left.back(), {116, 62}}));
        panicle({.flower = berries(7.4, palettes::berry),
                 .from = 0.7,
                 .branches = 8,
                 .perBranch = 4,
                 .width = 40})(p, spline({along(right, 0.5), along(right, 0.8), right.back(), {294, 76}}));
    }};
