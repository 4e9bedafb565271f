// Lentil, Lens culinaris: feathered leaves with tendrils, short flat pods of two seeds, a heap of lens-shaped
// seeds.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/botany/Pod.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_323_lentille", [](Plate& p) {
        herb(p,
             {.foot = {200, 268},
              .height = 204,
              .stems = {-72, 72, 0},
              .stemRadius = 2,
              .leaf = {.build = LeafKind::Build::pinnate,
                       .shape = shapes::elliptic,
                       .veins = 0,
                       .petiole = 0.06,
                       .leaflets = 5,
                       .leafletWidth = 0.2,
                       .terminal = false},
              .leaves = 5,
              .leavesFrom = 0.16,
              .leavesTo = 0.98,
              .leafLength = 74,
              .topLeafLength = 48,
              .leafWidth = 16,
              .topLeafWidth = 11,
              .leafAngle = 56,
              .inflorescence = raceme(
                  {.flower =
                       [](Plate& plate, Point at, double degrees, double scale, int) {
                           pod(plate,
                               {at, polar(at, degrees, 15 * scale), polar(at, degrees + 4, 31 * scale)},
                               {.width = 9.5 * scale, .seeds = 2, .open = false, .palette = palettes::leafy});
                       },
                   .nodes = 3,
                   .from = 0.34,
                   .to = 0.84,
                   .perNode = 2,
                   .angle = 84,
                   .pedicel = 12,
                   .smallest = 0.9,
                   .nod = 5})});
        ground(p, 110, 300, 326, 4);
        for (int row = 0; row < 5; ++row)
            for (int k = 0; k < 11 - row * 2; ++k) {
                const Point at{200 + (k - (10 - row * 2) / 2.0) * 15 + p.random.around(2),
                               320 - row * 11.0 + p.random.around(2)};
                ball(p, at, 7.6,
                     {.palette = k % 3 == 0 ? palettes::fawn : palettes::clay,
                      .direction = 90 + p.random.around(40),
                      .squash = 0.62,
                      .shade = 0.4});
            }
    }};
