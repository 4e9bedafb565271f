// Snowdrop, Galanthus nivalis: one nodding flower to a scape, three long white outer tepals, three short
// inner ones with a green mark; two grey strap leaves, a small bulb.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Sheet.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_124_perce-neige", [](Plate& p) {
        bulb(p, {200, 294}, 22, 36, palettes::root);
        const LeafForm strap{.width = 7,
                             .shape = shapes::linear,
                             .palette = palettes::bluegreen,
                             .veins = 0,
                             .parallel = true};
        leaf(p, {{196, 298}, {166, 230}, {128, 180}, {96, 164}}, strap);
        leaf(p, {{204, 298}, {230, 236}, {262, 190}, {300, 178}}, strap);
        const auto snowdrop = [&](const Path& scape, double size) {
            stem(p, scape, {3, 2.4, 1.3});
            const Point top = scape[scape.size() - 3];
            leaf(p, {top + Point{0, 6}, top + Point{2, -14}, top + Point{12, -30}},
                 {.width = 4,
                  .shape = shapes::lance,
                  .palette = palettes::leafy,
                  .veins = 0,
                  .parallel = true});
            const Point at = scape.back();
            Sheets sheets;
            const Frame frame(at + Point{0, 8}, -14, 90, 30);
            for (int k = 0; k < 3; ++k)
                sheets.petal(frame, k * 120 + 60,
                             {.length = size * 0.56,
                              .width = size * 0.19,
                              .baseAngle = 24,
                              .tipAngle = 10,
                              .shape = {0.5, 0.9, 1, 1, 0.9, 0.7},
                              .cup = 1,
                              .notch = 0.2,
                              .palette = 1},
                             p.random);
            for (int k = 0; k < 3; ++k)
                sheets.petal(frame, k * 120,
                             {.length = size,
                              .width = size * 0.28,
                              .baseAngle = 58,
                              .tipAngle = 16,
                              .shape = {0.25, 0.6, 0.95, 1, 0.75, 0},
                              .cup = 1.3,
                              .radius = 2,
                              .bending = 0.7,
                              .palette = 0},
                             p.random);
            sheets.engrave(p, {.palettes = {palettes::whiteflower,
                                            Sheets::Style::Tint{palettes::whiteflower, palettes::leaf}},
                               .contour = 0.95,
                               .washLift = 0});
            lathe(p, at + Point{0, -6}, 18, {3, 6.5, 7, 5},
                  {.direction = 90, .palette = palettes::leaf, .lines = Lines::along});
        };
        snowdrop({{198, 300}, {184, 220}, {152, 130}, {140, 92}, {122, 80}, {112, 104}}, 84);
        snowdrop({{202, 300}, {214, 200}, {238, 110}, {252, 68}, {276, 58}, {286, 84}}, 96);
    }};
