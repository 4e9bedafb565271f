// Tulip, Tulipa gesneriana: one goblet of six broad tepals on a stout stalk, broad grey clasping leaves, a
// bulb.

#include "plates/engraver/Sheet.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_184_tulipe", [](Plate& p) {
        bulb(p, {200, 298}, 24, 34, palettes::brown);
        LeafForm blade{.width = 23,
                       .shape = {0.6, 0.85, 1, 0.9, 0.65, 0.3, 0},
                       .palette = palettes::bluegreen,
                       .veins = 0,
                       .parallel = true,
                       .left = 0.7};
        leaf(p, {{196, 300}, {168, 240}, {124, 180}, {84, 152}}, blade);
        stem(p, {{200, 304}, {203, 240}, {200, 166}}, {5.4, 4.6, 4.8});
        blade.left = 1;
        blade.right = 0.65;
        leaf(p, {{205, 300}, {234, 240}, {286, 186}, {312, 128}}, blade);
        blade.width = 17;
        leaf(p, {{198, 302}, {186, 250}, {158, 214}}, blade);
        Sheets sheets;
        const Frame frame({200, 166}, 16, -90, 20);
        for (int ring = 0; ring < 2; ++ring)
            for (int k = 0; k < 3; ++k)
                sheets.petal(frame, k * 120 + ring * 60 + 30,
                             {.length = 112.0 - 6 * ring,
                              .width = 36,
                              .baseAngle = 66.0 - 8 * ring,
                              .tipAngle = -14.0 + 6 * ring,
                              .shape = {0.45, 0.85, 1, 0.98, 0.78, 0},
                              .cup = 1.1,
                              .curl = 8,
                              .radius = 3,
                              .bending = 0.5,
                              .tone =
                                  [](double u, double v) {
                                      return 0.24 * (1 - maths::smooth(0, 0.4, u)) +
                                             0.12 * maths::exp(-v * v * 50) * (1 - u);
                                  }},
                             p.random);
        sheets.engrave(p, {.palettes = {Sheets::Style::Tint{palettes::scarlet,
                                                            mix(palettes::scarlet, palettes::yellow, 0.5)}},
                           .edge = 1.6,
                           .washLift = 0.06});
    }};
