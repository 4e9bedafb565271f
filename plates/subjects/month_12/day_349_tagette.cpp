// French marigold, Tagetes patula: feathered toothed leaves, ruffled orange heads blotched with brown, a long
// green cup.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_349_tagette", [](Plate& p) {
        const FlowerAt head = [](Plate& plate, Point at, double degrees, double scale, int) {
            const Point top = polar(at, degrees, 24 * scale);
            tube(plate, {at, lerp(at, top, 0.5), top}, {4 * scale, 8 * scale, 11 * scale},
                 {.palette = palettes::leaf, .lines = Lines::along});
            flower(
                plate, polar(top, degrees, -5 * scale), degrees,
                {.petals = 9,
                 .length = 36,
                 .width = 15,
                 .baseAngle = 64,
                 .tipAngle = 92,
                 .shape = {0.4, 0.6, 0.85, 1, 0.95, 0.5},
                 .palette = palettes::orange,
                 .tips = palettes::yellow,
                 .ruffle = 2.6,
                 .ruffleTurns = 7,
                 .rings = 3,
                 .tilt = 56,
                 .marking = [](double u,
                               double v) { return 0.75 * (1 - maths::smooth(0.3, 0.62, u + 0.25 * v * v)); },
                 .eye = 6,
                 .eyePalette = palettes::gold},
                scale);
        };
        herb(p, {.height = 190,
                 .stems = {-82, 82, 0},
                 .stemRadius = 3,
                 .stemPalette = mix(palettes::stem, palettes::redstem, 0.3),
                 .leaf = {.build = LeafKind::Build::pinnate,
                          .shape = shapes::lance,
                          .margin = serrate(6, 0.25),
                          .veins = 0,
                          .petiole = 0.08,
                          .leaflets = 5,
                          .leafletWidth = 0.15},
                 .arrangement = Arrangement::opposite,
                 .leaves = 4,
                 .leavesFrom = 0.14,
                 .leavesTo = 0.76,
                 .leafLength = 84,
                 .topLeafLength = 50,
                 .leafWidth = 21,
                 .topLeafWidth = 14,
                 .leafAngle = 60,
                 .root = RootKind::fibrous,
                 .inflorescence = solitary(head)});
    }};
