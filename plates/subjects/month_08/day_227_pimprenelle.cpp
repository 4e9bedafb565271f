// Salad burnet, Sanguisorba minor: a rosette of pinnate leaves with round toothed leaflets; bare stalks with
// green-and-red balls.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_227_pimprenelle", [](Plate& p) {
        herb(p, {.height = 224,
                 .stems = {-84, 84, -30, 36, 0},
                 .stemRadius = 1.9,
                 .tipRadius = 1.2,
                 .stemPalette = mix(palettes::stem, palettes::redstem, 0.5),
                 .leaf = {.build = LeafKind::Build::pinnate,
                          .shape = shapes::orbicular,
                          .margin = serrate(4, 0.24),
                          .veins = 3,
                          .petiole = 0.1,
                          .leaflets = 6,
                          .leafletWidth = 0.42},
                 .leaves = 2,
                 .leavesFrom = 0.34,
                 .leavesTo = 0.6,
                 .leafLength = 46,
                 .topLeafLength = 34,
                 .leafWidth = 6.4,
                 .topLeafWidth = 5,
                 .basal = 6,
                 .basalLength = 150,
                 .basalWidth = 11.5,
                 .basalSpread = 80,
                 .root = RootKind::taproot,
                 .inflorescence = solitary([](Plate& plate, Point at, double degrees, double scale, int) {
                     globeHead(plate, at, degrees,
                               {.radius = 14,
                                .petal = 4,
                                .petalWidth = 1.7,
                                .count = 110,
                                .squash = 1.1,
                                .palette = palettes::leafy},
                               scale);
                     for (int k = 0; k < 26; ++k) {
                         const double a = plate.random.uniform(0, 360);
                         const Point from = polar(polar(at, degrees, 14 * scale), a,
                                                  14 * maths::pow(plate.random.uniform(), 0.5));
                         const Point to = polar(from, a, 5);
                         plate.stroke({from, to}, {.width = 0.6, .swell = 0, .fade = 0, .colour = 0x9A2C3C});
                         plate.dot(to, 1.7, 0xB8304A);
                     }
                 })});
    }};
