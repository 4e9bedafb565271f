// Daisy, Bellis perennis: a flat rosette of spoon leaves, bare scapes, white rays tipped with pink.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_174_paquerette", [](Plate& p) {
        herb(p,
             {.height = 186,
              .stems = {-92, 92, -32, 40},
              .stemRadius = 2.4,
              .tipRadius = 2.2,
              .arrangement = Arrangement::none,
              .basal = 9,
              .basalLength = 92,
              .basalWidth = 18,
              .basalSpread = 88,
              .basalLeaf =
                  LeafKind{.shape = shapes::spatulate, .margin = crenate(5, 0.08), .veins = 3, .petiole = 0},
              .root = RootKind::fibrous,
              .inflorescence = solitary(composites({.rays = 34,
                                                    .length = 29,
                                                    .width = 2.7,
                                                    .palette = palettes::whiteflower,
                                                    .tips = palettes::rose,
                                                    .disc = 13,
                                                    .dome = 0.4,
                                                    .baseAngle = 70,
                                                    .tipAngle = 86,
                                                    .tilt = 58,
                                                    .involucre = 9,
                                                    .washLift = 0}))});
    }};
