// Greater celandine, Chelidonium majus: round-lobed pinnate leaves, four-petalled yellow flowers, slender
// pods; the broken stem weeps orange sap.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"
#include "plates/engraver/botany/Pod.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_148_chelidoine", [](Plate& p) {
        herb(p, {.foot = {200, 336},
                 .height = 226,
                 .stems = {-82, 80, 0},
                 .stemRadius = 3,
                 .leaf = {.build = LeafKind::Build::pinnate,
                          .shape = shapes::obovate,
                          .margin = lobed(2.5, 0.34),
                          .veins = 4,
                          .petiole = 0.16,
                          .palette = palettes::bluegreen,
                          .leaflets = 2,
                          .leafletWidth = 0.38},
                 .leaves = 3,
                 .leavesFrom = 0.16,
                 .leavesTo = 0.76,
                 .leafLength = 118,
                 .topLeafLength = 74,
                 .leafWidth = 36,
                 .topLeafWidth = 26,
                 .leafAngle = 60,
                 .root = RootKind::taproot,
                 .inflorescence =
                     together({corymb({.flower =
                                           [](Plate& plate, Point at, double degrees, double scale, int) {
                                               pod(plate,
                                                   {at, polar(at, degrees, 18 * scale),
                                                    polar(at, degrees + 3, 38 * scale)},
                                                   {.width = 3, .seeds = 6, .open = false});
                                           },
                                       .count = 2,
                                       .spread = 60,
                                       .length = 20}),
                               corymb({.flower = flowers({.petals = 4,
                                                          .length = 17,
                                                          .width = 10.5,
                                                          .baseAngle = 74,
                                                          .tipAngle = 90,
                                                          .shape = shapes::orbicular,
                                                          .palette = palettes::yellow,
                                                          .tilt = 60,
                                                          .stamens = 14,
                                                          .stamenLength = 0.5,
                                                          .antherPalette = palettes::orange,
                                                          .washLift = 0.22}),
                                       .count = 3,
                                       .spread = 120,
                                       .length = 24})})});
        tube(p, {{302, 342}, {314, 300}, {322, 262}}, {4.6, 4.4},
             {.palette = palettes::leafy, .lines = Lines::along, .cutEnd = true});
        ball(p, {326, 268}, 5.6, {.palette = palettes::orange, .direction = -90, .squash = 1.2});
        ball(p, {325, 284}, 4.4, {.palette = palettes::orange, .direction = -90, .squash = 1.5});
    }};
