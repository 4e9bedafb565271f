#include "plates/engraver/Relief.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/carpentry/Iron.h"
#include "plates/engraver/carpentry/Wood.h"

using namespace tambrelle::engraver;

// The shovel: a scooped blade for loose stuff, a long shaft, a crutch for the hand.
static const Subject subject{
    "day_090_pelle", [](Plate& p) {
        const Placement lie{{78, 306}, -43};
        pole(p, lie.at({{116, 0}, {200, 2}, {276, 0}, {318, 0}}), {8, 6.6, 6.2, 6.4});
        pole(p, lie.at({{318, -30}, {321, 0}, {318, 30}}), {6, 7.5, 6});
        // Hollow along its middle: its left side looks away from the light.
        ReliefForm scoop;
        scoop.palette = palettes::iron;
        scoop.lines = {0.70, 0.62, 0.35};
        scoop.contour = 1.1;
        scoop.occlusion = false;
        scoop.tone = 0.04;
        scoop.height = [](Point at, double depth) {
            const Point q = rotate(at - Point{78, 306}, 43);
            return 0.0085 * q.y * q.y + 0.0016 * (q.x - 40) * (q.x - 40) * (q.x > 40 ? 1 : 0.3) +
                   0.35 * std::min(depth, 4.0);
        };
        relief(p,
               closedSpline(lie.at({{-4, 0},
                                    {6, -34},
                                    {26, -52},
                                    {60, -58},
                                    {100, -57},
                                    {124, -54},
                                    {130, -40},
                                    {126, -18},
                                    {132, -9},
                                    {132, 9},
                                    {126, 18},
                                    {130, 40},
                                    {124, 54},
                                    {100, 57},
                                    {60, 58},
                                    {26, 52},
                                    {6, 34}}),
                            8),
               scoop);
        // The socket runs down on to the blade.
        tube(p, lie.at({{78, 0}, {104, 0}, {140, 0}, {164, 0}}), {2, 7, 10.5, 9.5},
             {.palette = palettes::iron, .spacing = 1.7, .tone = 0.05, .contour = 0.9});
        for (const double u : {142.0, 156.0})
            p.dot(lie.at(u, -1), 1.5);
    }};
