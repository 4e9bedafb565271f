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
                    {.width = 1.5 - 0.6 * k, .swell = 0.4, .fade = 0.5, .alpha = 0.75});
            }
        const ReliefSurface dung = heap(p, {196, 298}, 132, 116, 0.3,
                                        {.palette = {0xC9A06A, 0x86592E, 0x40270F},
                                         .seed = 6,
                                         .rough = 3.0,
                                         .grain = 20,
                                         .depth = 48,
                                         .ragged = 3});
        straws(p, dung, 330, 32);
        // The fork, its tines half sunk.
        tube(p, {{256, 178}, {282, 116}, {306, 54}}, {4.4, 4.2, 4},
             {.palette = palettes::wood, .lines = Lines::along});
        for (const double side : {-1.0, 1.0, 0.0})
            tube(p,
                 spline({{255 + side * 2, 178},
                         {250 + side * 17, 192 + side * 5},
                         {240 + side * 19, 222 + side * 8},
                         {229 + side * 19, 250 + side * 7}}),
                 {3.0, 2.6, 1.7}, {.palette = palettes::iron});
        tube(p, {{260, 166}, {253, 184}}, 5.4, {.palette = palettes::iron});
        const ReliefSurface sunk = heap(p, {228, 292}, 44, 50, 0.2,
                                        {.palette = {0xC9A06A, 0x86592E, 0x40270F},
                                         .seed = 9,
                                         .rough = 3.0,
                                         .grain = 20,
                                         .depth = 20,
                                         .ragged = 3,
                                         .contour = 0,
                                         .shade = 0.1});
        straws(p, sunk, 60, 32);
    }};
