// Parsnip, Pastinaca sativa: a cream taper with a broad sunken crown; pinnate leaves of broad toothed
// leaflets.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/RootVegetable.h"

using namespace tambrelle::engraver;

static const Subject subject{"day_009_panais", [](Plate& p) {
                                 rootVegetable(p, {.crown = {200, 152},
                                                   .length = 132,
                                                   .shape = {19, 30, 28, 22, 15, 8, 3},
                                                   .tail = 34,
                                                   .palette = palettes::cream,
                                                   .rough = 0.05,
                                                   .lenticels = 26,
                                                   .hairs = 8,
                                                   .leaf = {.build = LeafKind::Build::pinnate,
                                                            .shape = shapes::ovate,
                                                            .margin = serrate(5, 0.25),
                                                            .petiole = 0.34,
                                                            .leaflets = 3,
                                                            .leafletWidth = 0.27},
                                                   .leaves = 4,
                                                   .leafLength = 118,
                                                   .leafWidth = 27,
                                                   .leafSpread = 58});
                             }};
