// Double stock, Matthiola incana, the gilliflower of gardens: one stout stem close-set with double rosettes,
// long soft grey leaves with smooth rims.

#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_283_giroflee", [](Plate& p) {
        rootlets(p, {200, 342}, 9, 90, 90, 22);
        const Path main{{198, 346}, {203, 260}, {198, 160}, {201, 54}};
        const Path curve = spline(main);
        const LeafKind blade{.shape = {0.25, 0.45, 0.75, 1, 0.95, 0.5, 0},
                             .veins = 5,
                             .petiole = 0.02,
                             .palette = palettes::greygreen};
        for (int k = 0; k < 9; ++k) {
            const double side = k % 2 == 0 ? 1 : -1;
            growLeaf(p, along(curve, 0.05 + 0.04 * k), -90 + side * (78 - 4 * k), 138 - 6.0 * k, 15, blade,
                     side * 12);
        }
        stem(p, main, {5, 4, 2.4}, palettes::greygreen);
        const auto rosette = [&](Point at, double degrees, double size) {
            flower(p, at, degrees,
                   {.petals = 5,
                    .length = 25,
                    .width = 13.5,
                    .baseAngle = 66,
                    .tipAngle = 90,
                    .palette = mix(palettes::rose, palettes::crimson, 0.35),
                    .tips = palettes::pink,
                    .notch = 0.1,
                    .ruffle = 1.6,
                    .rings = 3,
                    .tilt = 66,
                    .washLift = 0.08},
                   size);
        };
        // From the tip down and from the rim to the front.
        for (const double x : {-5.0, 6.0})
            rosette(polar(curve.back(), -90 + x * 8, 2), -90 + x * 6, 0.34);
        for (int k = 6; k >= 0; --k) {
            const double q = 0.5 + 0.46 * k / 6.0, size = 1.08 - 0.56 * k / 6.0;
            for (const double side : {-1.0, 1.0}) {
                const double reach = 33 * size;
                rosette(along(curve, q) + Point{side * reach, -4}, -90 + side * 58, size);
            }
            if (k % 2 == 0 || k > 4)
                rosette(along(curve, q + 0.03), -70, size * 0.96);
        }
    }};
