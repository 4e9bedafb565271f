#include "plates/engraver/Relief.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/carpentry/Iron.h"
#include "plates/engraver/carpentry/Wood.h"

using namespace tambrelle::engraver;

// The mattock hoe: a short helve and one broad heavy blade that turns back at a right angle to it.
static const Subject subject{
    "day_080_houe", [](Plate& p) {
        const Placement lie{{92, 304}, -57};
        pole(p, lie.at({{0, 0}, {90, -2}, {180, 0}, {250, 0}}), {7.5, 6.5, 7, 7.5});
        // The blade leaves the eye and widens to its edge, hollow towards the user.
        ReliefForm hollow;
        hollow.palette = palettes::iron;
        hollow.lines = {0.75, -0.45, 0.5};
        hollow.contour = 1.1;
        hollow.tone = 0.1;
        hollow.occlusion = false;
        hollow.height = [](Point at, double depth) {
            return 0.0009 * (at.x - 268) * (at.x - 268) + 0.0016 * (at.y - 190) * (at.y - 190) +
                   std::min(depth, 5.0) * 0.6;
        };
        relief(p,
               closedSpline({{222, 94},
                             {240, 84},
                             {262, 88},
                             {292, 110},
                             {326, 148},
                             {344, 184},
                             {336, 204},
                             {312, 226},
                             {282, 246},
                             {262, 248},
                             {250, 206},
                             {238, 158},
                             {228, 122}},
                            8),
               hollow);
        // The rib that stiffens it.
        forged(p, closedSpline({{236, 104}, {250, 98}, {282, 142}, {300, 186}, {264, 148}}, 8),
               {.bevel = 6, .heightScale = 0.9});
        ferrule(p, lie.at(226, 0), lie.at(262, 0), {14, 15, 14.5});
        sawnPole(p, lie.at({{256, 0}, {272, 0}}), {8, 9});
    }};
