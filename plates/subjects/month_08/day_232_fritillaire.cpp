// Snake's head, Fritillaria meleagris: nodding six-parted bells chequered purple and pale; grassy grey
// leaves, a small bulb.

#include "plates/engraver/Sheet.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_232_fritillaire", [](Plate& p) {
        bulb(p, {200, 302}, 20, 30, palettes::cream);
        const LeafForm blade{.width = 4.6,
                             .shape = shapes::linear,
                             .palette = palettes::bluegreen,
                             .veins = 0,
                             .parallel = true};
        stem(p, {{199, 306}, {186, 220}, {150, 140}, {136, 84}, {112, 74}, {100, 94}}, {3, 2.6, 2});
        stem(p, {{201, 306}, {214, 200}, {240, 110}, {250, 60}, {276, 48}, {290, 72}}, {3, 2.6, 2});
        for (const Path& spine :
             {Path{{188, 236}, {150, 206}, {96, 204}}, Path{{170, 178}, {192, 140}, {190, 104}},
              Path{{208, 240}, {256, 214}, {310, 216}}, Path{{224, 168}, {196, 128}, {206, 60}},
              Path{{212, 214}, {250, 176}, {306, 170}}, Path{{192, 262}, {150, 252}, {112, 268}},
              Path{{204, 270}, {238, 254}, {282, 268}}})
            leaf(p, spine, blade);
        const auto bellflower = [&](Point at, double degrees, double size) {
            Sheets sheets;
            const Frame frame(at, -12, degrees, 14);
            for (int k = 0; k < 6; ++k)
                sheets.petal(frame, k * 60,
                             {.length = size,
                              .width = size * 0.29,
                              .baseAngle = 62,
                              .tipAngle = -16,
                              .shape = {0.5, 0.85, 1, 0.98, 0.75, 0},
                              .cup = 1.05,
                              .radius = 2.5,
                              .bending = 0.55,
                              .tone =
                                  [](double u, double v) {
                                      const bool odd =
                                          (static_cast<int>(u * 11) + static_cast<int>((v + 1) * 3.5)) % 2 ==
                                          0;
                                      return odd ? 0.34 : -0.2;
                                  },
                              .rows = 56,
                              .columns = 43},
                             p.random);
            sheets.engrave(p, {.palettes = {mix(palettes::purple, palettes::crimson, 0.3)},
                               .washLift = 0.04,
                               .occlusion = 0.6});
        };
        bellflower({100, 90}, 96, 92);
        bellflower({290, 68}, 84, 104);
    }};
