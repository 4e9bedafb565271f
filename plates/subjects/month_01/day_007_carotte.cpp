// Carrot, Daucus carota: an orange taper with cross marks, finely bipinnate leaves.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/RootVegetable.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_007_carotte", [](Plate& p) {
        rootVegetable(
            p,
            {.crown = {200, 150},
             .length = 122,
             .shape = {16, 21, 20, 17, 12.5, 7, 2.4},
             .tail = 36,
             .leaf = {.build = LeafKind::Build::frond, .leaflets = 4, .leafletWidth = 0.36, .subdivided = 4},
             .leaves = 5,
             .leafLength = 112,
             .leafWidth = 17,
             .leafSpread = 46});
    }};
