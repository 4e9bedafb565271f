// Wild ginger, Asarum europaeum: a creeping rhizome, two glossy kidney leaves, and between them a brown
// three-lobed cup at the ground.

#include "plates/engraver/Sheet.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_156_asaret", [](Plate& p) {
        tube(p, {{84, 326}, {150, 314}, {210, 322}, {306, 312}}, {5, 6.4, 5},
             {.palette = palettes::root, .rough = 0.12});
        for (int k = 0; k < 8; ++k)
            rootlets(p, {100 + 27.0 * k, 320}, 3, 90, 60, 26);
        const auto kidney = [&](const Path& stalk, double degrees, double size) {
            stem(p, stalk, {3.8, 3.2}, palettes::redstem);
            const Point at = stalk.back();
            leaf(p,
                 {polar(at, degrees + 180, size * 0.1), polar(at, degrees, size * 0.5),
                  polar(at, degrees, size * 1.15)},
                 {.width = size * 0.72,
                  .shape = {0.78, 0.97, 1, 0.96, 0.84, 0.6, 0.1},
                  .palette = palettes::darkleaf,
                  .veins = 5,
                  .slant = 0.12});
        };
        kidney({{196, 316}, {166, 250}, {126, 172}}, -112, 74);
        kidney({{208, 316}, {240, 250}, {276, 172}}, -68, 74);
        Sheets sheets;
        const Frame frame({202, 304}, 34, -90, 30);
        sheets.cup(frame, {.length = 30, .radius = 20, .shape = {0.5, 0.95, 1, 0.85}});
        for (int k = 0; k < 3; ++k)
            sheets.petal(frame, k * 120,
                         {.length = 38,
                          .width = 19,
                          .baseAngle = 16,
                          .tipAngle = 74,
                          .shape = {1, 1, 0.8, 0.4, 0},
                          .cup = 1.4,
                          .radius = 17,
                          .offset = 24},
                         p.random);
        sheets.engrave(p, {.palettes = {mix(palettes::brown, palettes::crimson, 0.5)}, .washLift = 0.04});
    }};
