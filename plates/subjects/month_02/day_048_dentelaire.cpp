// Leadwort, Plumbago europaea: wavy stem-clasping leaves, blue-violet salver flowers of five lobes on long
// tubes from sticky glandular calyces.

#include "plates/engraver/Maths.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_048_dentelaire", [](Plate& p) {
        const FlowerForm salver{.length = 22,
                                .width = 12,
                                .baseAngle = 76,
                                .tipAngle = 92,
                                .shape = shapes::orbicular,
                                .palette = mix(palettes::blue, palettes::violet, 0.5),
                                .notch = 0.06,
                                .tilt = 66,
                                .marking =
                                    [](double u, double v) {
                                        return 0.2 * (1 - maths::smooth(0, 0.4, u)) +
                                               0.22 * maths::exp(-v * v * 90) * (1 - u * 0.6);
                                    },
                                .tube = 20,
                                .tubeRadius = 2.4,
                                .eye = 1.6,
                                .eyePalette = palettes::whiteflower};
        herb(p, {.height = 206,
                 .stems = {-78, 78, 0},
                 .stemRadius = 2.8,
                 .leaf = {.shape = shapes::elliptic, .margin = wavy(6, 0.12), .veins = 5, .petiole = 0.03},
                 .leaves = 6,
                 .leavesFrom = 0.1,
                 .leavesTo = 0.8,
                 .leafLength = 84,
                 .topLeafLength = 42,
                 .leafWidth = 17,
                 .topLeafWidth = 9,
                 .leafAngle = 54,
                 .root = RootKind::taproot,
                 .inflorescence =
                     corymb({.flower =
                                 [salver](Plate& plate, Point at, double degrees, double scale, int) {
                                     flower(plate, polar(at, degrees, 16 * scale), degrees, salver, scale);
                                     const Point end = polar(at, degrees, 12 * scale);
                                     tube(plate, {polar(at, degrees, -3), end}, {2.2 * scale, 3 * scale},
                                          {.lines = Lines::along});
                                     for (int k = 0; k < 10; ++k) {
                                         const Point from = lerp(at, end, k / 10.0);
                                         plate.stroke({from, polar(from, degrees + (k % 2 == 0 ? 80 : -80),
                                                                   5.4 * scale)},
                                                      {.width = 0.5});
                                     }
                                 },
                             .count = 3,
                             .spread = 170,
                             .length = 26})});
    }};
