// Carrot, Daucus carota: an orange taper with cross marks, finely bipinnate leaves.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/RootVegetable.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_007_carotte", [](Plate& p) {
        rootVegetable(p, {.crown = {200, 150},
                          .length = 122,
                          .shape = {16, 21, 20, 17, 12.5, 7, 2.4},
                          .tail = 36,
                          .leaf = {.build = LeafKind::Build::frond, .leaflets = 5, .subdivided = 5},
                          .leaves = 5,
                          .leafLength = 112,
                          .leafWidth = 14,
                          .leafSpread = 46});
    }};
