// Jonquil, Narcissus jonquilla: several small all-yellow flowers with a shallow cup on a round scape, rush-
// like leaves, a bulb.

#include "plates/engraver/Sheet.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_188_jonquille", [](Plate& p) {
        bulb(p, {200, 300}, 24, 34, palettes::brown);
        const LeafForm rush{.width = 3.4,
                            .shape = shapes::linear,
                            .palette = palettes::darkleaf,
                            .veins = 0,
                            .parallel = true};
        for (const Path& spine : {Path{{195, 302}, {172, 220}, {126, 140}, {112, 70}},
                                  Path{{205, 302}, {236, 220}, {280, 150}, {300, 96}},
                                  Path{{197, 302}, {184, 240}, {150, 200}, {110, 190}},
                                  Path{{203, 302}, {216, 240}, {248, 212}, {292, 212}}})
            leaf(p, spine, rush);
        stem(p, {{200, 304}, {202, 220}, {200, 150}}, {3.8, 3.2});
        leaflet(p, {199, 156}, {180, 104}, {.width = 7, .palette = palettes::straw});
        struct Bloom {
            Point tip;
            double degrees, tilt;
        };
        for (const Bloom& b :
             {Bloom{{142, 118}, -156, 56}, Bloom{{262, 116}, -20, 56}, Bloom{{198, 78}, -96, 70},
              Bloom{{176, 160}, 140, 64}, Bloom{{240, 166}, 40, 62}}) {
            stem(p, {{200, 150}, lerp(Point{200, 146}, b.tip, 0.6) + Point{0, -10}, b.tip}, {1.9, 1.6});
            Sheets sheets;
            const Frame frame(polar(b.tip, b.degrees, 18), b.tilt, b.degrees, 12);
            tube(p, {b.tip, polar(b.tip, b.degrees, 19)}, {2.2, 3.2},
                 {.palette = mix(palettes::yellow, palettes::leafy, 0.4), .lines = Lines::along});
            for (int k = 0; k < 6; ++k)
                sheets.petal(frame, k * 60.0,
                             {.length = 35,
                              .width = 14,
                              .baseAngle = 78,
                              .tipAngle = 96,
                              .shape = {0.6, 0.9, 1, 0.9, 0.62, 0},
                              .cup = 2.6,
                              .radius = 4,
                              .palette = 0},
                             p.random);
            sheets.cup(frame, {.length = 14,
                               .radius = 14,
                               .shape = {0.5, 0.75, 0.9, 1, 1.08},
                               .flute = 1.2,
                               .flutes = 12,
                               .tone = -0.12,
                               .palette = 1});
            for (int k = 0; k < 3; ++k)
                sheets.rod(frame, {.azimuth = k * 120.0,
                                   .lean = 8,
                                   .length = 13,
                                   .radius = 1,
                                   .tipRadius = 1.8,
                                   .palette = 1});
            sheets.engrave(p, {.palettes = {palettes::yellow, mix(palettes::yellow, palettes::orange, 0.65)},
                               .washLift = 0.04});
        }
    }};
