// Hop, Humulus lupulus: a twining stem, rough three-lobed leaves in pairs, hanging cones of papery pale green
// scales.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_353_houblon", [](Plate& p) {
        const LeafKind three{.build = LeafKind::Build::palmate,
                             .petiole = 0.24,
                             .lobes = {{-58, 0.82}, {0, 1}, {58, 0.82}},
                             .sinus = 0.6,
                             .teeth = 6,
                             .toothHeight = 2.6};
        const Path vine =
            stem(p, {{92, 330}, {84, 250}, {116, 170}, {170, 100}, {250, 74}, {336, 88}}, {3.4, 3, 1.8});
        growLeaf(p, along(vine, 0.2), 16, 106, 32, three);
        growLeaf(p, along(vine, 0.5), -148, 98, 30, three);
        growLeaf(p, along(vine, 0.72), -100, 82, 26, three);
        growLeaf(p, along(vine, 0.94), -44, 82, 26, three);
        tendril(p, {334, 88}, 30, {.length = 26});
        const auto hop = [&](double q, Point at, double size) {
            const Point from = along(vine, q);
            stem(p, {from, lerp(from, at, 0.5) + Point{5, -3}, at}, {1.5, 1.2});
            scales(p, at, 92,
                   {.radius = size * 0.36,
                    .length = size,
                    .shape = {0.45, 0.9, 1, 0.85, 0.55, 0.16},
                    .rows = 8,
                    .perRow = 7,
                    .scaleShape = shapes::ovate,
                    .palette = mix(palettes::leafy, palettes::cream, 0.35),
                    .spread = 26,
                    .tipFirst = false});
        };
        hop(0.6, {150, 168}, 58);
        hop(0.56, {196, 196}, 74);
        hop(0.66, {236, 158}, 80);
        hop(0.8, {288, 140}, 76);
        hop(0.9, {324, 170}, 58);
        hop(0.72, {268, 236}, 66);
    }};
