// Birch, Betula: a white trunk with black bars, rhombic double-toothed leaves on slender twigs, hanging
// catkins.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Branch.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Habit.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_187_bouleau", [](Plate& p) {
        trunk(p, {110, 344}, {112, 36}, 34, {.bark = TrunkForm::Bark::birch, .palette = palettes::birch});
        const Path bough = twig(p, {{136, 84}, {190, 62}, {250, 60}, {318, 84}}, {4.4, 3.2, 1.8});
        const LeafKind rhombic{.shape = {0.2, 0.62, 1, 0.82, 0.5, 0.22, 0},
                               .margin = serrate(9, 0.2),
                               .veins = 7,
                               .petiole = 0.22};
        for (const BranchLeaf& l :
             {BranchLeaf{0.3, 108, 104, 29}, BranchLeaf{0.56, 72, 112, 31}, BranchLeaf{0.98, 60, 108, 30},
              BranchLeaf{0.62, -56, 74, 22}, BranchLeaf{0.9, -30, 72, 21}})
            growLeaf(p, along(bough, l.at), l.degrees, l.length, l.width, rhombic, 6);
        const Path side = twig(p, {along(bough, 0.2), {184, 150}, {206, 214}, {216, 240}}, {2, 1.4});
        growLeaf(p, along(side, 0.62), 30, 84, 24, rhombic, 14);
        growLeaf(p, along(side, 1), 30, 86, 25, rhombic, 20);
        catkin(p, {along(side, 0.8), {200, 250}, {198, 316}}, 9, palettes::oldleaf);
        catkin(p, {along(side, 1), {222, 270}, {224, 332}}, 9, palettes::oldleaf);
    }};
