// Apricot, Prunus armeniaca: round heart-based leaves, velvety orange globes with a seam and a red cheek; a
// half with its smooth keeled stone.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Branch.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/StoneFruit.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_313_abricot", [](Plate& p) {
        const Path bough = twig(p, {{66, 92}, {146, 66}, {226, 72}, {306, 56}}, {5.4, 4.2, 2.4});
        const LeafKind round{.shape = {0.35, 0.9, 1, 0.94, 0.78, 0.5, 0},
                             .margin = crenate(16, 0.06),
                             .veins = 6,
                             .petiole = 0.22,
                             .stalk = palettes::redstem};
        for (const BranchLeaf& l : {BranchLeaf{0.06, 124, 96, 34}, BranchLeaf{0.34, -132, 76, 28},
                                    BranchLeaf{0.66, -52, 80, 29}, BranchLeaf{0.97, 44, 100, 35}})
            growLeaf(p, along(bough, l.at), l.degrees, l.length, l.width, round);
        const StoneFruitForm form{.skin = mix(palettes::orange, palettes::yellow, 0.25),
                                  .flesh = {0xF8C878, 0xE08A2E, 0xB5621C}};
        stoneFruit(p, along(bough, 0.3), {130, 158}, 60, form);
        stoneFruit(p, along(bough, 0.56), {230, 154}, 58, form);
        ground(p, 196, 330, 326, 3);
        stoneFruitHalf(p, {262, 268}, 60, form);
    }};
