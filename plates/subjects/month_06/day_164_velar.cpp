// Hedge mustard, Sisymbrium officinale: wiry branches that stand out wide from the stem, slim pods pressed
// close along them and a small tuft of yellow four-petalled flowers at each tip; lyrate leaves below. Part of
// a branch enlarged, below.

#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Inflorescence.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

namespace {

/// Awl-shaped pods that lie along a branch between two shares of its length.
void pressedPods(Plate& p, const Path& curve, double from, double to, double length, double radius) {
    const int count = static_cast<int>(arcLength(curve) * (to - from) / (length * 0.52));
    for (int k = count - 1; k >= 0; --k) {
        const double q = from + (to - from) * k / count, side = k % 2 == 0 ? 1 : -1;
        const double way = angleAlong(curve, q);
        const Point at = polar(along(curve, q), way + 90 * side, radius * 0.7);
        leaf(p, {at, polar(at, way + side * 15, length * 0.4), polar(at, way + side * 9, length)},
             {.width = length * 0.095,
              .shape = {0.4, 1, 1, 0.8, 0.5, 0.1},
              .palette = palettes::leafy,
              .veins = 0,
              .parallel = true,
              .contour = 0.6,
              .midrib = 0.5});
    }
}

} // namespace

static const Subject subject{
    "day_164_velar", [](Plate& p) {
        const LeafKind lyrate{.build = LeafKind::Build::pinnate,
                              .shape = shapes::ovate,
                              .margin = dentate(4, 0.24),
                              .veins = 4,
                              .petiole = 0.16,
                              .leaflets = 2,
                              .leafletWidth = 0.36};
        const Path branches[] = {{{200, 240}, {146, 214}, {78, 196}},
                                 {{201, 226}, {260, 200}, {322, 176}},
                                 {{200, 190}, {150, 156}, {104, 106}},
                                 {{201, 178}, {246, 138}, {284, 86}},
                                 {{196, 346}, {202, 240}, {199, 150}, {202, 58}}};
        rootlets(p, {196, 348}, 9, 90, 80, 20);
        growLeaf(p, {197, 322}, -164, 106, 27, lyrate, 14);
        growLeaf(p, {197, 318}, -136, 92, 24, lyrate, 14);
        growLeaf(p, {198, 322}, -22, 76, 20, lyrate, -14);
        const FlowerAt blossom = flowers({.petals = 4,
                                          .length = 9,
                                          .width = 4.6,
                                          .baseAngle = 66,
                                          .tipAngle = 88,
                                          .palette = palettes::yellow,
                                          .tilt = 58,
                                          .washLift = 0.2});
        for (const Path& branch : branches) {
            const Path curve = spline(branch);
            const bool main = branch.size() > 3;
            tube(p, branch, main ? Profile{3.6, 2.6, 1.4} : Profile{2.2, 1.4}, {.palette = palettes::stem});
            pressedPods(p, curve, main ? 0.52 : 0.2, 0.96, 22, 1.8);
            corymb({.flower = blossom, .count = 6, .spread = 170, .length = 11})(p, curve);
        }
        // Enlarged.
        const Path piece{{304, 350}, {309, 296}, {308, 238}};
        tube(p, piece, {3.6, 3.2}, {.palette = palettes::stem, .cutEnd = true});
        pressedPods(p, spline(piece), 0.06, 0.8, 40, 3.2);
    }};
