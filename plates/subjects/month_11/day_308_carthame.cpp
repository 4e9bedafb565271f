// Safflower, Carthamus tinctorius: spiny ovate leaves, a leafy prickly involucre with an orange brush.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"
#include "plates/engraver/botany/Leaf.h"

#include <cmath>

using namespace tambrelle::engraver;

static const Subject subject{
    "day_308_carthame", [](Plate& p) {
        const FlowerAt head = [](Plate& plate, Point at, double degrees, double scale, int) {
            for (int k = 0; k < 30; ++k) {
                const double f = ((k * 11) % 30) / 14.5 - 1;
                const Point from = polar(polar(at, degrees, 24 * scale), degrees + 90, f * 8 * scale);
                leaflet(plate, from, polar(from, degrees + f * 58, (34 - 8 * std::fabs(f)) * scale),
                        {.width = 1.8 * scale,
                         .palette = k % 3 == 0 ? palettes::scarlet : palettes::orange,
                         .tone = 0.1});
            }
            for (const double a : {-100.0, 100.0, -66.0, 66.0, -36.0, 36.0, 0.0})
                growLeaf(plate, polar(at, degrees, 3), degrees + a * 0.9,
                         (std::fabs(a) > 50 ? 44 : 30) * scale, 8 * scale,
                         {.margin = serrate(5, 0.35), .veins = 4, .petiole = 0});
            scales(plate, at, degrees,
                   {.radius = 17,
                    .length = 30,
                    .shape = {0.6, 1, 1, 0.8, 0.55},
                    .rows = 5,
                    .perRow = 8,
                    .palette = palettes::leafy,
                    .spines = true},
                   scale);
        };
        herb(p, {.height = 200,
                 .stems = {-84, 84, 0},
                 .stemRadius = 3,
                 .stemPalette = palettes::straw,
                 .leaf = {.shape = shapes::ovate, .margin = serrate(8, 0.26), .veins = 6, .petiole = 0},
                 .leaves = 5,
                 .leavesFrom = 0.1,
                 .leavesTo = 0.82,
                 .leafLength = 70,
                 .topLeafLength = 48,
                 .leafWidth = 17,
                 .topLeafWidth = 12,
                 .leafAngle = 56,
                 .root = RootKind::taproot,
                 .inflorescence = solitary(head)});
    }};
