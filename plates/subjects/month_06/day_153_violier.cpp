// Stock, Matthiola incana: grey felted blunt leaves, a raceme of large violet four-petalled flowers.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_153_violier", [](Plate& p) {
        herb(p,
             {.height = 236,
              .stems = {-70, 70, 0},
              .stemRadius = 3.6,
              .stemPalette = palettes::greygreen,
              .leaf = {.shape = shapes::spatulate, .veins = 3, .petiole = 0, .palette = palettes::greygreen},
              .leaves = 9,
              .leavesFrom = 0.06,
              .leavesTo = 0.56,
              .leafLength = 96,
              .topLeafLength = 54,
              .leafWidth = 11,
              .topLeafWidth = 8,
              .leafAngle = 46,
              .root = RootKind::taproot,
              .inflorescence =
                  raceme({.flower = flowers({.petals = 4,
                                             .length = 19,
                                             .width = 11.5,
                                             .baseAngle = 72,
                                             .tipAngle = 90,
                                             .shape = shapes::orbicular,
                                             .palette = mix(palettes::violet, palettes::magenta, 0.35),
                                             .notch = 0.1,
                                             .tilt = 60,
                                             .eye = 2.6,
                                             .eyePalette = palettes::leafy}),
                          .nodes = 6,
                          .from = 0.54,
                          .perNode = 2,
                          .angle = 76,
                          .pedicel = 13,
                          .smallest = 0.6})});
    }};
