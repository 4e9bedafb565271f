// Cucumber, Cucumis sativus: a long warty green fruit, a cut slice with its seeds, a five-lobed yellow
// flower, rough angled leaves, a tendril.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Gourd.h"
#include "plates/engraver/botany/RootVegetable.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{"day_277_concombre", [](Plate& p) {
                                 const LeafKind angled{
                                     .build = LeafKind::Build::palmate,
                                     .petiole = 0.2,
                                     .lobes = {{-110, 0.68}, {-52, 0.84}, {0, 1}, {52, 0.84}, {110, 0.68}},
                                     .sinus = 0.84,
                                     .teeth = 4,
                                     .toothHeight = 2};
                                 stem(p, {{70, 84}, {160, 62}, {250, 74}, {336, 56}}, {4, 3, 2.2});
                                 growLeaf(p, {124, 70}, 138, 118, 50, angled);
                                 growLeaf(p, {292, 68}, 40, 106, 46, angled);
                                 tendril(p, {204, 66}, -50, {.length = 36});
                                 stem(p, {{222, 70}, {214, 92}, {206, 116}}, {2.2, 2});
                                 flower(p, {206, 118}, 110,
                                        {.length = 34,
                                         .width = 17,
                                         .baseAngle = 56,
                                         .tipAngle = 86,
                                         .shape = {0.5, 0.85, 1, 0.75, 0},
                                         .palette = palettes::yellow,
                                         .tilt = 58,
                                         .eye = 5,
                                         .eyePalette = palettes::orange,
                                         .washLift = 0.02});
                                 ground(p, 76, 330, 262, 4);
                                 stem(p, {{160, 63}, {110, 130}, {80, 186}, {90, 220}}, {3, 2.6, 3});
                                 longFruit(p, {{86, 214}, {150, 236}, {220, 234}, {300, 190}},
                                           {.radius = {12, 25, 28, 28, 27, 22, 9},
                                            .palette = palettes::darkleaf,
                                            .warts = 46,
                                            .stripes = 5});
                                 cutFace(p, {306, 240},
                                         {.radius = 33,
                                          .squash = 0.92,
                                          .rind = palettes::darkleaf,
                                          .flesh = mix(palettes::leafy, palettes::whiteflower, 0.6),
                                          .rindWidth = 0.1,
                                          .pips = 12,
                                          .pipsAt = 0.46,
                                          .pip = palettes::cream});
                             }};
