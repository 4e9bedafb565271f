// Wood anemone, Anemone nemorosa: a whorl of three palmate leaves half way up, one white six-tepalled flower,
// a thin rhizome.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{"day_177_sylvie", [](Plate& p) {
                                 tube(p, {{92, 330}, {160, 322}, {220, 330}, {306, 322}}, {4, 4.6, 3.4},
                                      {.palette = palettes::brown, .rough = 0.12});
                                 for (int k = 0; k < 7; ++k)
                                     rootlets(p, {110 + 28.0 * k, 328}, 2, 90, 50, 18);
                                 const LeafKind cut{
                                     .build = LeafKind::Build::palmate,
                                     .petiole = 0.24,
                                     .lobes = {{-84, 0.8}, {-38, 0.9}, {0, 1}, {38, 0.9}, {84, 0.8}},
                                     .sinus = 0.3,
                                     .teeth = 3,
                                     .toothHeight = 3.4,
                                     .bulge = 0.9};
                                 stem(p, {{200, 328}, {206, 270}, {200, 214}}, {3.6, 3});
                                 growLeaf(p, {200, 216}, -166, 124, 40, cut, -16);
                                 growLeaf(p, {200, 216}, -14, 124, 40, cut, 16);
                                 stem(p, {{200, 218}, {196, 160}, {202, 112}}, {2.8, 2.4}, palettes::redstem);
                                 flower(p, {202, 110}, -90,
                                        {.petals = 6,
                                         .length = 56,
                                         .width = 21,
                                         .baseAngle = 62,
                                         .tipAngle = 84,
                                         .shape = shapes::elliptic,
                                         .palette = palettes::whiteflower,
                                         .tips = mix(palettes::whiteflower, palettes::pink, 0.3),
                                         .tilt = 52,
                                         .eye = 5,
                                         .eyePalette = palettes::leafy,
                                         .stamens = 26,
                                         .stamenLength = 0.34,
                                         .washLift = 0});
                                 growLeaf(p, {200, 216}, 80, 92, 34, cut);
                             }};
