// Broccoli: a thick pale stalk that branches under a domed head of blue-green buds; a few long leaves.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/botany/LeafHead.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_132_brocoli", [](Plate& p) {
        for (const double s : {-1.0, 1.0}) {
            leaf(p, {{200 + s * 10, 320}, {200 + s * 70, 262}, {200 + s * 128, 196}, {200 + s * 140, 130}},
                 {.width = 30,
                  .shape = shapes::ovate,
                  .margin = wavy(7, 0.16),
                  .palette = palettes::bluegreen,
                  .veins = 7,
                  .pucker = 0.24});
            leaf(p, {{200 + s * 12, 324}, {200 + s * 64, 310}, {200 + s * 118, 300}, {200 + s * 144, 322}},
                 {.width = 22,
                  .shape = shapes::ovate,
                  .margin = wavy(6, 0.16),
                  .palette = palettes::bluegreen,
                  .veins = 6,
                  .pucker = 0.24});
        }
        for (const double x : {-74.0, 74.0, -44.0, 44.0, 0.0})
            tube(p, {{200 + x * 0.12, 300}, {200 + x * 0.36, 252}, {200 + x * 0.9, 198}}, {12, 10.5, 9},
                 {.palette = palettes::leafy, .lines = Lines::along});
        tube(p, {{200, 348}, {200, 310}, {200, 268}}, {21, 22, 24},
             {.palette = palettes::leafy, .lines = Lines::along});
        const Palette green = mix(palettes::bluegreen, palettes::darkleaf, 0.4);
        curd(p, {124, 190},
             {.width = 42, .height = 34, .knobs = 42, .knob = 9, .palette = green, .grains = 7});
        curd(p, {276, 190},
             {.width = 42, .height = 34, .knobs = 42, .knob = 9, .palette = green, .grains = 7});
        curd(p, {200, 168},
             {.width = 74, .height = 62, .knobs = 92, .knob = 11, .palette = green, .grains = 7});
    }};
