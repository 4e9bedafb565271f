// Saffron crocus, Crocus sativus: autumn corm, linear leaves, six violet tepals and three long red stigmas
// hanging out.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Herb.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_002_safran", [](Plate& p) {
        bulb(p, {200, 262}, 25, 40);
        const LeafForm blade{.width = 2.9,
                             .shape = shapes::linear,
                             .palette = palettes::bluegreen,
                             .veins = 0,
                             .parallel = true,
                             .contour = 0.6};
        for (const Path& spine : {Path{{198, 266}, {172, 218}, {140, 170}, {104, 162}},
                                  Path{{201, 266}, {228, 210}, {264, 170}, {302, 166}},
                                  Path{{196, 266}, {182, 208}, {154, 142}, {132, 112}},
                                  Path{{203, 266}, {220, 198}, {252, 134}, {272, 108}}})
            leaf(p, spine, blade);
        tube(p, {{200, 270}, {199, 234}, {201, 204}, {201, 188}}, {4.6, 3.8, 4.4},
             {.palette = palettes::whiteflower, .lines = Lines::along});
        leaf(p, {{200, 268}, {194, 240}, {196, 216}},
             {.width = 7,
              .shape = shapes::lance,
              .palette = palettes::cream,
              .veins = 0,
              .parallel = true,
              .midrib = 0});
        Sheets sheets;
        const Frame frame({201, 190}, 24);
        const auto veined = [](double u, double v) {
            return 0.40 * (1 - maths::smooth(0, 0.5, u)) + 0.10 * maths::exp(-v * v * 200) * (1 - u) +
                   0.05 * maths::cos(v * 26) * (1 - u);
        };
        for (int ring = 0; ring < 2; ++ring)
            for (int k = 0; k < 3; ++k)
                sheets.petal(frame, k * 120 + ring * 60 + 30,
                             {.length = 106.0 - 4 * ring,
                              .width = 21,
                              .baseAngle = 48.0 - 6 * ring,
                              .tipAngle = 4.0 + 6 * ring,
                              .shape = {0.3, 0.7, 1, 1, 0.75, 0},
                              .cup = 1.25,
                              .curl = 14,
                              .radius = 2.5,
                              .bending = 0.8,
                              .tone = veined},
                             p.random);
        for (int k = 0; k < 3; ++k) {
            sheets.rod(frame, {.azimuth = k * 120.0 + 95,
                               .lean = 14,
                               .bend = 40,
                               .length = 84,
                               .radius = 1.6,
                               .tipRadius = 3.0,
                               .offset = 30,
                               .palette = 1});
            sheets.rod(frame, {.azimuth = k * 120.0 + 40,
                               .lean = 12,
                               .length = 40,
                               .radius = 1.9,
                               .tipRadius = 1.9,
                               .offset = 30,
                               .palette = 2});
        }
        sheets.engrave(p, {.palettes = {palettes::violet, palettes::scarlet, palettes::yellow},
                           .spacing = 1.8,
                           .edge = 1.6,
                           .washLift = 0.06,
                           .ambient = -0.12});
    }};
