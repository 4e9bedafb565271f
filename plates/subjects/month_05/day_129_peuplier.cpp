// Lombardy poplar, Populus nigra: a narrow flame-shaped tree, and a twig with triangular toothed leaves on
// long flat stalks.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/ColumnTree.h"
#include "plates/engraver/botany/CompoundLeaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_129_peuplier", [](Plate& p) {
        ground(p, 70, 168, 336, 4);
        columnTree(p, {118, 336},
                   {.height = 300,
                    .crown = {14, 27, 33, 34, 32, 26, 18, 4},
                    .bole = 0.1,
                    .trunk = 8,
                    .palette = palettes::leaf,
                    .spray = 24,
                    .lean = 26});
        const Path curve = twig(p, {{206, 76}, {236, 122}, {250, 190}, {246, 250}}, {4.6, 3.6, 2.4});
        const LeafKind delta{.shape = shapes::deltoid,
                             .margin = crenate(11, 0.07),
                             .veins = 6,
                             .petiole = 0.34,
                             .palette = palettes::leaf,
                             .stalk = palettes::redstem};
        growLeaf(p, along(curve, 0.2), -32, 108, 34, delta, 8);
        growLeaf(p, along(curve, 0.42), 146, 82, 27, delta, -6);
        growLeaf(p, along(curve, 0.52), 0, 122, 38, delta, 8);
        growLeaf(p, along(curve, 0.72), 130, 90, 28, delta, -6);
        growLeaf(p, along(curve, 0.99), 76, 128, 40, delta, 10);
    }};
