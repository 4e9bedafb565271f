// Marsh mallow, Althaea officinalis: velvety grey fan-folded leaves, pale pink five-petalled flowers about a
// violet column of stamens.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_316_guimauve", [](Plate& p) {
        herb(p, {.height = 244,
                 .stems = {-64, 64, 0},
                 .stemRadius = 3,
                 .stemPalette = palettes::greygreen,
                 .leaf = {.build = LeafKind::Build::palmate,
                          .petiole = 0.2,
                          .palette = palettes::greygreen,
                          .stalk = palettes::greygreen,
                          .lobes = {{-70, 0.6}, {-36, 0.78}, {0, 1}, {36, 0.78}, {70, 0.6}},
                          .sinus = 0.78,
                          .teeth = 4,
                          .toothHeight = 2},
                 .leaves = 6,
                 .leavesFrom = 0.1,
                 .leavesTo = 0.9,
                 .leafLength = 84,
                 .topLeafLength = 46,
                 .leafWidth = 26,
                 .topLeafWidth = 14,
                 .leafAngle = 58,
                 .root = RootKind::taproot,
                 .inflorescence = raceme({.flower = flowers({.length = 24,
                                                             .width = 14,
                                                             .baseAngle = 58,
                                                             .tipAngle = 84,
                                                             .shape = shapes::obovate,
                                                             .palette = palettes::pink,
                                                             .tips = palettes::whiteflower,
                                                             .notch = 0.08,
                                                             .tilt = 58,
                                                             .eye = 4.5,
                                                             .eyePalette = palettes::violet,
                                                             .stamens = 8,
                                                             .stamenLength = 0.32,
                                                             .antherPalette = palettes::purple,
                                                             .sepals = 5,
                                                             .washLift = 0.04}),
                                          .nodes = 3,
                                          .from = 0.5,
                                          .to = 1,
                                          .perNode = 2,
                                          .angle = 58,
                                          .pedicel = 16,
                                          .smallest = 0.74})});
    }};
