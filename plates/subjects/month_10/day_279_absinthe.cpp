// Wormwood, Artemisia absinthium: silky grey, twice-cut leaves with blunt lobes; a panicle of small nodding
// yellow buttons.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_279_absinthe", [](Plate& p) {
        const Palette silver = mix(palettes::greygreen, palettes::silver, 0.25);
        herb(p, {.height = 262,
                 .stems = {-84, 86, 0},
                 .stemRadius = 3.2,
                 .stemPalette = palettes::greygreen,
                 .leaf = {.build = LeafKind::Build::frond,
                          .petiole = 0.24,
                          .palette = silver,
                          .stalk = palettes::greygreen,
                          .leaflets = 2,
                          .leafletWidth = 0.5,
                          .subdivided = 3},
                 .leaves = 4,
                 .leavesFrom = 0.1,
                 .leavesTo = 0.62,
                 .leafLength = 104,
                 .topLeafLength = 50,
                 .leafWidth = 34,
                 .topLeafWidth = 17,
                 .leafAngle = 58,
                 .root = RootKind::taproot,
                 .inflorescence = raceme({.flower =
                                              [](Plate& plate, Point at, double, double scale, int) {
                                                  ball(plate, at + Point{0, 4 * scale}, 8.6 * scale,
                                                       {.palette = palettes::greygreen, .squash = 0.8});
                                                  ball(plate, at + Point{0, 10 * scale}, 6.8 * scale,
                                                       {.palette = palettes::yellow, .squash = 0.6});
                                              },
                                          .nodes = 8,
                                          .from = 0.42,
                                          .angle = 66,
                                          .pedicel = 19,
                                          .smallest = 0.6,
                                          .nod = 7})});
    }};
