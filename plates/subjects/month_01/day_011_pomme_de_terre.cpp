// Potato, Solanum tuberosum: tubers on stolons under the soil, pinnate leaves, white five-cornered flowers
// with a yellow cone.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"
#include "plates/engraver/botany/RootVegetable.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_011_pomme_de_terre", [](Plate& p) {
        for (const Path& runner :
             {Path{{196, 232}, {160, 252}, {128, 262}}, Path{{204, 232}, {240, 250}, {282, 258}},
              Path{{198, 232}, {186, 266}, {178, 288}}, Path{{202, 232}, {222, 268}, {240, 292}}})
            tube(p, runner, {2.2, 1.5}, {.palette = palettes::root});
        rootlets(p, {200, 234}, 18, 90, 120, 34);
        tuber(p, {112, 270}, {.length = 46, .width = 33, .direction = 12});
        tuber(p, {294, 266}, {.length = 48, .width = 34, .direction = -14});
        tuber(p, {176, 306}, {.length = 48, .width = 34, .direction = 8});
        tuber(p, {250, 308}, {.length = 42, .width = 31, .direction = -30});
        herb(p, {.foot = {200, 238},
                 .height = 164,
                 .stems = {-46, 48, 0},
                 .stemRadius = 3,
                 .leaf = {.build = LeafKind::Build::pinnate,
                          .shape = shapes::ovate,
                          .veins = 4,
                          .petiole = 0.2,
                          .leaflets = 2,
                          .leafletWidth = 0.25},
                 .leaves = 4,
                 .leavesFrom = 0.2,
                 .leavesTo = 0.8,
                 .leafLength = 104,
                 .topLeafLength = 64,
                 .leafWidth = 24,
                 .topLeafWidth = 17,
                 .leafAngle = 60,
                 .inflorescence = corymb({.flower = flowers({.length = 17,
                                                             .width = 12.5,
                                                             .baseAngle = 76,
                                                             .tipAngle = 92,
                                                             .shape = {0.7, 0.9, 1, 0.85, 0},
                                                             .palette = palettes::whiteflower,
                                                             .cup = 3,
                                                             .tilt = 64,
                                                             .eye = 4.6,
                                                             .eyePalette = palettes::yellow,
                                                             .sepals = 5,
                                                             .washLift = 0}),
                                          .count = 3,
                                          .spread = 120,
                                          .length = 22})});
        ground(p, 84, 316, 236, 3);
    }};
