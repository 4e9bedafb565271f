// Liquorice, Glycyrrhiza glabra: feathered leaves, pale violet pea spikes; a tied bundle of brown root sticks
// with yellow ends.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_339_reglisse", [](Plate& p) {
        herb(p, {.foot = {156, 338},
                 .height = 262,
                 .stems = {-30, 36},
                 .stemRadius = 3,
                 .leaf = {.build = LeafKind::Build::pinnate,
                          .shape = shapes::elliptic,
                          .veins = 3,
                          .petiole = 0.08,
                          .leaflets = 5,
                          .leafletWidth = 0.22},
                 .leaves = 5,
                 .leavesFrom = 0.16,
                 .leavesTo = 0.6,
                 .leafLength = 104,
                 .topLeafLength = 66,
                 .leafWidth = 24,
                 .topLeafWidth = 16,
                 .leafAngle = 62,
                 .inflorescence = raceme({.flower = peas(23, mix(palettes::lilac, palettes::violet, 0.4)),
                                          .nodes = 7,
                                          .from = 0.6,
                                          .to = 1,
                                          .perNode = 2,
                                          .angle = 70,
                                          .pedicel = 4,
                                          .smallest = 0.5})});
        const Point place[] = {{0, 0}, {14, -3}, {28, -2}, {42, 1}, {7, 12}, {21, 11}, {35, 13}};
        for (const Point& d : place) {
            const Point from = Point{214, 306} + Point{d.x * 0.5, d.y},
                        to = Point{330, 236} + Point{d.x * 0.35, d.y * 1.5};
            tube(p, {from, lerp(from, to, 0.5) + Point{0, 3}, to}, {7.4, 7, 6.6},
                 {.palette = palettes::brown, .lines = Lines::along, .rough = 0.06});
            const Path end = closedSpline(ellipse(from, 5, 7.2, 16));
            p.knockOut(end);
            p.flat(end, Colour(0xEFC95A));
            p.contour(end, 0.8);
            p.dot(from, 1.2);
        }
        for (const double q : {0.0, 5.0})
            tube(p, {{274 + q, 256 - q * 0.6}, {286 + q, 276 - q * 0.6}, {294 + q, 300 - q * 0.6}},
                 {2.2, 2.2}, {.palette = palettes::straw});
    }};
