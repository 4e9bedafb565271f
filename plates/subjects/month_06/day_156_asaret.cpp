// Wild ginger, Asarum europaeum: a creeping rhizome, two glossy kidney leaves, and between them a brown
// three-lobed cup at the ground.

#include "plates/engraver/Path.h"
#include "plates/engraver/Sheet.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Roots.h"
#include "plates/engraver/botany/RoundLeaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_156_asaret", [](Plate& p) {
        for (int k = 0; k < 8; ++k)
            rootlets(p, {100 + 27.0 * k, 324}, 3, 90, 60, 26);
        tube(p, {{84, 330}, {150, 318}, {210, 326}, {306, 316}}, {6, 8, 6},
             {.palette = palettes::root, .rough = 0.14});
        const auto kidney = [&](const Path& stalk, double degrees, double size) {
            stem(p, stalk, {4.2, 3.4}, palettes::redstem);
            roundLeaf(p, stalk.back(), degrees, size,
                      {.breadth = 0.98, .bay = 0.5, .point = 0, .palette = palettes::darkleaf});
        };
        kidney({{206, 320}, {246, 266}, {284, 196}}, -76, 78);
        kidney({{196, 320}, {154, 264}, {120, 184}}, -104, 86);
        Sheets sheets;
        const Frame frame({200, 312}, 34, -90, 30);
        sheets.cup(frame, {.length = 36, .radius = 25, .shape = {0.5, 0.95, 1, 0.85}});
        for (int k = 0; k < 3; ++k)
            sheets.petal(frame, k * 120,
                         {.length = 46,
                          .width = 23,
                          .baseAngle = 16,
                          .tipAngle = 74,
                          .shape = {1, 1, 0.8, 0.4, 0},
                          .cup = 1.4,
                          .radius = 20,
                          .offset = 28},
                         p.random);
        sheets.engrave(p, {.palettes = {mix(palettes::brown, palettes::crimson, 0.5)}, .washLift = 0.04});
    }};
