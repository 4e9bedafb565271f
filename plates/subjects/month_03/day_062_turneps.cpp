// Field turnip, Brassica rapa: a flat yellowish disc, far broader than high, on a thread of a tail; long
// lyrate leaves.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Maths.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/RootVegetable.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_062_turneps", [](Plate& p) {
        rootVegetable(p, {.crown = {200, 204},
                          .length = 92,
                          .shape =
                              +[](double q) {
                                  return 8 +
                                         84 * maths::pow(maths::sin(maths::pi * maths::pow(q, 0.84)), 0.62);
                              },
                          .tail = 62,
                          .palette = mix(palettes::yellow, palettes::cream, 0.45),
                          .lower = palettes::whiteflower,
                          .lowerFrom = 0.45,
                          .lines = Lines::along,
                          .rough = 0.02,
                          .lenticels = 20,
                          .hairs = 8,
                          .leaf = {.shape = {0.2, 0.25, 0.3, 0.42, 0.6, 0.85, 1, 0.9, 0.5, 0},
                                   .margin = lobed(5, 0.5),
                                   .veins = 6,
                                   .petiole = 0.14,
                                   .palette = palettes::bluegreen},
                          .leaves = 6,
                          .leafLength = 140,
                          .leafWidth = 24,
                          .leafSpread = 62});
        ground(p, 60, 340, 236, 5);
    }};
