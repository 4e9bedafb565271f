// Garden orache, Atriplex hortensis: mealy triangular leaves, tall dense spikes of round green and red
// valves.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_229_arroche", [](Plate& p) {
        herb(p, {.height = 214,
                 .stems = {-66, 66, 0},
                 .stemRadius = 3.8,
                 .stemPalette = mix(palettes::stem, palettes::redstem, 0.5),
                 .leaf = {.shape = shapes::deltoid,
                          .margin = dentate(4, 0.16),
                          .veins = 5,
                          .petiole = 0.22,
                          .palette = mix(palettes::greygreen, palettes::leaf, 0.4),
                          .stalk = palettes::redstem},
                 .leaves = 6,
                 .leavesFrom = 0.12,
                 .leavesTo = 0.64,
                 .leafLength = 106,
                 .topLeafLength = 58,
                 .leafWidth = 32,
                 .topLeafWidth = 17,
                 .leafAngle = 58,
                 .root = RootKind::taproot,
                 .inflorescence =
                     together({raceme({.flower =
                                           [](Plate& plate, Point at, double degrees, double scale, int) {
                                               spike({.radius = 7,
                                                      .from = 0.05,
                                                      .grain = 3.4,
                                                      .palette = palettes::leafy,
                                                      .second = palettes::red,
                                                      .secondShare = 0.5})(
                                                   plate, {at, polar(at, degrees, 18 * scale),
                                                           polar(at, degrees - 4, 40 * scale)});
                                           },
                                       .nodes = 3,
                                       .from = 0.6,
                                       .to = 0.86,
                                       .angle = 34,
                                       .pedicel = 3,
                                       .smallest = 0.6}),
                               spike({.radius = 10,
                                      .from = 0.62,
                                      .grain = 3.6,
                                      .palette = palettes::leafy,
                                      .second = palettes::red,
                                      .secondShare = 0.5})})});
    }};
