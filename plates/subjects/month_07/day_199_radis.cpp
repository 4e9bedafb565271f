// Radish, Raphanus sativus: a bunch of small red globes with white tails, lyrate rough leaves, tied.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/RootVegetable.h"

using namespace tambrelle::engraver;

static const Subject subject{"day_199_radis", [](Plate& p) {
                                 struct Radish {
                                     Point crown;
                                     double direction;
                                 };
                                 const LeafKind lyrate{.shape = {0.12, 0.32, 0.24, 0.5, 0.95, 1, 0.7, 0},
                                                       .margin = dentate(7, 0.16),
                                                       .veins = 6,
                                                       .pucker = 0.2,
                                                       .petiole = 0.1};
                                 for (const Radish& r : {Radish{{120, 226}, 118}, Radish{{280, 226}, 62},
                                                         Radish{{160, 246}, 104}, Radish{{240, 246}, 76},
                                                         Radish{{200, 236}, 90}})
                                     rootVegetable(p, {.crown = r.crown,
                                                       .length = 60,
                                                       .shape = {7, 19, 25, 28, 28, 25, 17, 5},
                                                       .tail = 32,
                                                       .palette = palettes::crimson,
                                                       .lower = palettes::whiteflower,
                                                       .lowerFrom = 0.7,
                                                       .lenticels = 4,
                                                       .hairs = 3,
                                                       .leaf = lyrate,
                                                       .leaves = 3,
                                                       .leafLength = 158,
                                                       .leafWidth = 21,
                                                       .leafSpread = 24,
                                                       .stalk = palettes::stem,
                                                       .direction = r.direction});
                                 for (const double y : {196.0, 203.0})
                                     tube(p, {{138, y - 4}, {200, y + 6}, {262, y - 4}}, 2.8,
                                          {.palette = palettes::straw, .spacing = 2.4});
                             }};
