#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/minerals/Heap.h"

using namespace tambrelle::engraver;

// Manure: a steaming brown heap of dung and straw, with the three-tined fork stuck in it.
static const Subject subject{
    "day_098_fumier", [](Plate& p) {
        ground(p, 66, 334, 300, 6);
        for (const double x : {122.0, 158.0, 190.0}) // steam
            for (int k = 0; k < 2; ++k) {
                const double q = x + k * 9;
                p.stroke(
                    spline(
                        {{q, 176.0 - k * 4}, {q - 8, 156}, {q + 5, 134}, {q - 5, 112}, {q + 7, 88.0 + k * 8}},
                        12),
                    {.width = 1.0 - 0.3 * k, .swell = 0.4, .fade = 0.5, .alpha = 0.75});
            }
        tube(p, {{252, 220}, {278, 142}, {304, 66}}, {4.2, 4, 3.8},
             {.palette = palettes::wood, .lines = Lines::along});
        for (const double side : {-1.0, 0.0, 1.0})
            tube(p, spline({{254 + side * 3, 214}, {250 + side * 16, 222}, {244 + side * 19, 258}}),
                 {2.8, 2.2, 1.6}, {.palette = palettes::iron});
        tube(p, {{258, 200}, {253, 216}}, 5, {.palette = palettes::iron});
        const ReliefSurface dung = heap(p, {196, 298}, 132, 124, 0.35,
                                        {.palette = {0xC9A06A, 0x86592E, 0x40270F},
                                         .seed = 6,
                                         .rough = 3.0,
                                         .grain = 20,
                                         .depth = 48,
                                         .ragged = 3});
        straws(p, dung, 210, 34);
    }};
