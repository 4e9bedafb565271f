// Wild ginger, Asarum europaeum: a creeping rhizome, two glossy kidney leaves, and between them a brown
// three-lobed cup at the ground.

#include "plates/engraver/Sheet.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
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
            palmateLeaf(
                p, stalk.back(), degrees, size,
                {.lobes =
                     {{-150, 0.72}, {-110, 0.96}, {-60, 1.06}, {0, 1}, {60, 1.06}, {110, 0.96}, {150, 0.72}},
                 .sinus = 0.96,
                 .teeth = 0,
                 .toothHeight = 0,
                 .palette = palettes::darkleaf,
                 .bulge = 1.4});
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
