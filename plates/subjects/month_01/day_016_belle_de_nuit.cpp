// Marvel of Peru, Mirabilis jalapa: opposite ovate leaves, long-tubed funnels of magenta and of yellow on
// one plant; a black ribbed seed.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_016_belle_de_nuit", [](Plate& p) {
        int turn = 0;
        const FlowerForm funnel{.petals = 5,
                                .length = 22,
                                .width = 14,
                                .baseAngle = 44,
                                .tipAngle = 84,
                                .shape = {0.5, 0.8, 1, 1, 0.8, 0},
                                .palette = palettes::magenta,
                                .cup = 2.4,
                                .notch = 0.2,
                                .tilt = 32,
                                .tube = 42,
                                .tubeRadius = 2.6,
                                .stamens = 5,
                                .stamenLength = 0.9,
                                .sepals = 0};
        herb(p, {.height = 176,
                 .stems = {-78, 78, 0},
                 .stemRadius = 3.4,
                 .leaf = {.shape = shapes::cordate, .veins = 6, .petiole = 0.16},
                 .arrangement = Arrangement::opposite,
                 .leaves = 4,
                 .leavesFrom = 0.22,
                 .leavesTo = 0.92,
                 .leafLength = 76,
                 .topLeafLength = 58,
                 .leafWidth = 23,
                 .topLeafWidth = 17,
                 .leafAngle = 62,
                 .root = RootKind::taproot,
                 .inflorescence = corymb(
                     {.flower =
                          [funnel, turn](Plate& plate, Point at, double degrees, double scale, int) mutable {
                              FlowerForm form = funnel;
                              if (++turn % 3 == 2)
                                  form.palette = palettes::yellow;
                              flower(plate, at, degrees, form, scale);
                          },
                      .count = 2,
                      .spread = 100,
                      .length = 44})});
        ball(p, {316, 318}, 10, {.palette = palettes::black, .direction = -80, .tone = 0.15});
        ball(p, {338, 326}, 9, {.palette = palettes::black, .direction = -50, .tone = 0.15});
    }};
