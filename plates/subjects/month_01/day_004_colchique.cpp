// Meadow saffron, Colchicum autumnale: naked lilac-pink goblets on long white tubes from a big brown corm,
// no leaves.

#include "plates/engraver/Sheet.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_004_colchique", [](Plate& p) {
        rootlets(p, {200, 328}, 16, 90, 110, 16);
        struct Goblet {
            Path tube;
            double degrees, length, tilt;
        };
        for (const Goblet& g : {Goblet{{{194, 282}, {182, 230}, {140, 168}}, -112, 82, 26},
                                Goblet{{{206, 282}, {222, 226}, {264, 176}}, -68, 78, 20},
                                Goblet{{{200, 284}, {200, 210}, {202, 144}}, -90, 96, 30}}) {
            tube(p, g.tube, {4.2, 3.6, 4.4}, {.palette = palettes::whiteflower, .lines = Lines::along});
            Sheets sheets;
            const Frame frame(g.tube.back() + Point{0, 2}, g.tilt, g.degrees);
            for (int ring = 0; ring < 2; ++ring)
                for (int k = 0; k < 3; ++k)
                    sheets.petal(frame, k * 120 + ring * 60 + 20,
                                 {.length = g.length - 5 * ring,
                                  .width = 17,
                                  .baseAngle = 40.0 - 6 * ring,
                                  .tipAngle = 8.0 + 6 * ring,
                                  .shape = {0.3, 0.65, 0.95, 1, 0.8, 0},
                                  .cup = 1.3,
                                  .curl = 12,
                                  .radius = 2.5,
                                  .bending = 0.8,
                                  .tone =
                                      [](double u, double v) {
                                          return 0.24 * (1 - maths::smooth(0, 0.5, u)) +
                                                 0.05 * maths::cos(v * 22) * (1 - u);
                                      }},
                                 p.random);
            for (int k = 0; k < 6; ++k)
                sheets.rod(frame, {.azimuth = k * 60.0 + 10,
                                   .lean = 14,
                                   .length = g.length * 0.5,
                                   .radius = 0.9,
                                   .tipRadius = 2.2,
                                   .offset = 12,
                                   .palette = 1});
            sheets.engrave(p,
                           {.palettes = {Sheets::Style::Tint{mix(palettes::lilac, palettes::pink, 0.3),
                                                             mix(palettes::violet, palettes::magenta, 0.4)},
                                         palettes::orange},
                            .edge = 1.6,
                            .washLift = 0.08,
                            .ambient = -0.08});
        }
        bulb(p, {200, 268}, 30, 58, palettes::brown);
    }};
