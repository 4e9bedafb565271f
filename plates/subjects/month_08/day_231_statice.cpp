// Thrift, Armeria maritima: a dense tuft of needle leaves, pink balls on bare stalks with a papery sheath
// under each.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{"day_231_statice", [](Plate& p) {
                                 const auto head = globes({.radius = 23,
                                                           .petal = 8.5,
                                                           .petalWidth = 4,
                                                           .count = 90,
                                                           .squash = 0.82,
                                                           .palette = palettes::rose});
                                 herb(p, {.height = 216,
                                          .stems = {-92, 92, -44, 48, 0},
                                          .stemRadius = 1.9,
                                          .tipRadius = 1.6,
                                          .leaf = {.shape = shapes::linear,
                                                   .parallel = true,
                                                   .petiole = 0,
                                                   .palette = palettes::bluegreen},
                                          .arrangement = Arrangement::none,
                                          .basal = 40,
                                          .basalLength = 88,
                                          .basalWidth = 1.7,
                                          .basalSpread = 88,
                                          .root = RootKind::taproot,
                                          .inflorescence = [head](Plate& plate, const Path& curve) {
                                              const Point tip = curve.back();
                                              const double way = angleAlong(curve, 1);
                                              tube(plate, {polar(tip, way, -20), tip}, {2.8, 3.6},
                                                   {.palette = palettes::straw, .lines = Lines::along});
                                              head(plate, tip + Point{0, 2}, way, 1, 1);
                                          }});
                             }};
