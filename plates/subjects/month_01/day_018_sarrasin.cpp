// Buckwheat, Fagopyrum esculentum: arrow leaves, reddish stem, clusters of small white five-lobed flowers;
// three-edged brown nutlets below.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_018_sarrasin", [](Plate& p) {
        const LeafKind arrow{
            .shape = shapes::deltoid,
            .veins = 5,
            .petiole = 0.2,
            .stalk = palettes::redstem,

        };
        herb(p, {.foot = {190, 340},
                 .height = 206,
                 .stems = {-62, 58, 0},
                 .stemRadius = 3,
                 .stemPalette = palettes::redstem,
                 .leaf = arrow,
                 .leaves = 4,
                 .leavesFrom = 0.2,
                 .leavesTo = 0.84,
                 .leafLength = 104,
                 .topLeafLength = 70,
                 .leafWidth = 30,
                 .topLeafWidth = 20,
                 .leafAngle = 56,
                 .root = RootKind::fibrous,
                 .inflorescence = corymb({.flower = flowers({.length = 9,
                                                             .width = 6,
                                                             .palette = palettes::whiteflower,
                                                             .tips = palettes::pink,
                                                             .tilt = 60,
                                                             .eye = 2.4,
                                                             .washLift = 0}),
                                          .count = 8,
                                          .spread = 150,
                                          .length = 26,
                                          .stalk = palettes::redstem})});
        const auto grain = [&](Point at, double size) {
            const Point top = at + Point{0, -size}, left = at + Point{-size * 0.62, size * 0.34},
                        right = at + Point{size * 0.6, size * 0.28},
                        foot = at + Point{-0.04 * size, size * 0.68};
            const Path whole = closedSpline({top, lerp(top, right, 0.5) + Point{3, -1}, right, foot, left,
                                             lerp(top, left, 0.5) + Point{-3, -1}},
                                            8);
            p.knockOut(whole);
            p.flat(whole, palettes::brown, 0.35);
            const Path dark = {top, lerp(top, right, 0.5) + Point{3, -1}, right, foot};
            p.flat(dark, palettes::brown, 0.8);
            for (int k = 1; k < 7; ++k)
                p.stroke(
                    {lerp(top, foot, k / 7.0), lerp(lerp(top, right, k / 7.0) + Point{2, 0}, right, 0.15)},
                    {.width = 0.7});
            p.stroke({top, foot}, {.width = 0.9});
            p.contour(whole, 0.9);
        };
        grain({300, 300}, 25);
        grain({334, 318}, 22);
        grain({290, 334}, 16);
    }};
