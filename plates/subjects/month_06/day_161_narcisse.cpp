// Poet's narcissus, Narcissus poeticus: six white tepals about a small shallow cup, yellow with an orange
// rim; flat leaves, a bulb.

#include "plates/engraver/Sheet.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_161_narcisse", [](Plate& p) {
        bulb(p, {200, 300}, 26, 40, palettes::brown);
        const LeafForm strap{.width = 7,
                             .shape = shapes::linear,
                             .palette = palettes::bluegreen,
                             .veins = 0,
                             .parallel = true};
        leaf(p, {{194, 306}, {166, 230}, {124, 160}, {112, 120}}, strap);
        leaf(p, {{206, 306}, {236, 230}, {292, 170}, {318, 160}}, strap);
        leaf(p, {{197, 306}, {176, 250}, {120, 220}, {88, 232}}, strap);
        leaf(p, {{204, 306}, {222, 240}, {240, 170}, {242, 130}}, strap);
        stem(p, {{200, 306}, {204, 210}, {196, 140}, {198, 116}}, {4.4, 4, 3.4});
        leaf(p, {{198, 150}, {218, 138}, {238, 150}},
             {.width = 5, .shape = shapes::lance, .palette = palettes::tan, .veins = 0, .parallel = true});
        Sheets sheets;
        const Frame frame({198, 110}, 62, -100, 10);
        for (int k = 0; k < 6; ++k)
            sheets.petal(frame, k * 60,
                         {.length = 74 - 4.0 * (k % 2),
                          .width = 29,
                          .baseAngle = 80,
                          .tipAngle = 92,
                          .shape = {0.4, 0.85, 1, 0.95, 0.7, 0},
                          .cup = 2.4,
                          .radius = 4},
                         p.random);
        sheets.cup(frame, {.length = 17,
                           .radius = 20,
                           .shape = {0.5, 0.8, 0.95, 1.1},
                           .flute = 2.4,
                           .flutes = 14,
                           .palette = 1});
        for (int k = 0; k < 6; ++k)
            sheets.rod(
                frame,
                {.azimuth = k * 60.0, .lean = 16, .length = 16, .radius = 1, .tipRadius = 2.2, .palette = 2});
        sheets.engrave(
            p, {.palettes = {palettes::whiteflower, Sheets::Style::Tint{palettes::yellow, palettes::scarlet},
                             palettes::leafy},
                .contour = 0.95,
                .washLift = 0});
    }};
