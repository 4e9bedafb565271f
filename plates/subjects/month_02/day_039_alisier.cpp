// Wild service, Sorbus torminalis: maple-like leaves with sharp toothed lobes, loose clusters of small
// brown fruits dotted with pale specks.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Maths.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Branch.h"
#include "plates/engraver/botany/CompoundLeaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_039_alisier", [](Plate& p) {
        branch(p, {.spine = {{70, 100}, {150, 74}, {230, 82}, {330, 56}},
                   .radius = {5, 4, 2.4},
                   .leaf = {.build = LeafKind::Build::palmate,
                            .petiole = 0.26,
                            .lobes = {{-84, 0.62}, {-42, 0.86}, {0, 1}, {42, 0.86}, {84, 0.62}},
                            .sinus = 0.66,
                            .teeth = 6,
                            .toothHeight = 2.0,
                            .bulge = 0.75},
                   .leaves = {{0.12, 112, 132, 38},
                              {0.34, -116, 92, 30},
                              {0.66, -62, 96, 30},
                              {0.8, 66, 138, 38},
                              {0.99, 6, 80, 28}}});
        const auto fruit = [&](Point knot, Point at) {
            stem(p, {knot, lerp(knot, at, 0.6) + Point{(at.x - knot.x) * 0.14, -3}, at + Point{0, -11}},
                 {1.3, 1.1}, palettes::redstem);
            ball(p, at, 13.5, {.palette = palettes::brown, .direction = -90, .squash = 1.14});
            for (int k = 0; k < 9; ++k) {
                const Point speck =
                    polar(at, p.random.uniform(0, 360), 10 * maths::pow(p.random.uniform(), 0.5));
                p.dot(speck, 0.9, palettes::cream.light);
            }
            for (int k = -1; k < 2; ++k)
                p.stroke({at + Point{k * 1.0, 13}, at + Point{k * 4.0, 18}}, {.width = 0.9});
        };
        const Point knot{204, 140};
        stem(p, {{190, 76}, {198, 104}, knot}, {2.2, 1.8}, palettes::redstem);
        for (const Point& at :
             {Point{160, 184}, Point{250, 182}, Point{186, 172}, Point{226, 170}, Point{140, 216},
              Point{272, 212}, Point{174, 222}, Point{240, 222}, Point{206, 206}, Point{206, 246}})
            fruit(knot, at);
    }};
