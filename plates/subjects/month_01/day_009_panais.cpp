// Parsnip, Pastinaca sativa: a cream taper with a broad sunken crown; pinnate leaves of broad toothed
// leaflets.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/RootVegetable.h"

using namespace tambrelle::engraver;

static const Subject subject{"day_009_panais", [](Plate& p) {
                                 rootVegetable(p, {.crown = {200, 168},
                                                   .length = 118,
                                                   .shape = {17, 25, 23, 18, 12, 6.5, 2.4},
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
                                                            .leafletWidth = 0.36},
                                                   .leaves = 4,
                                                   .leafLength = 128,
                                                   .leafWidth = 34,
                                                   .leafSpread = 58});
                             }};
