#include "plates/engraver/Face.h"
#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/carpentry/Iron.h"
#include "plates/engraver/carpentry/Soil.h"
#include "plates/engraver/carpentry/Wood.h"

using namespace tambrelle::engraver;

// The spade: a flat straight-sided blade thrust upright into turned soil, treads for the foot, a crutch
// handle.
static const Subject subject{
    "day_160_beche", [](Plate& p) {
        const Placement lie{{196, 300}, -86};
        ground(p, 74, 326, 288, 7);
        pole(p, lie.at({{96, 0}, {160, 1}, {232, 0}}), {8, 7, 7.5});
        pole(p, lie.at({{232, -34}, {236, 0}, {232, 34}}), {6.5, 8.5, 6.5});
        const Path blade = lie.at({{-6, -50},
                                   {60, -54},
                                   {106, -55},
                                   {108, -20},
                                   {118, -12},
                                   {118, 12},
                                   {108, 20},
                                   {106, 55},
                                   {60, 54},
                                   {-6, 50}});
        forged(p, blade,
               {.bevel = 4,
                .heightScale = 0.5,
                .tone = 0.18,
                .palette = palettes::steel,
                .lines = {0.12, 0.98, 0.2}});
        face(p, lie.at({{101, -58}, {111, -58}, {111, -20}, {101, -20}}),
             {.tone = 0.25, .palette = palettes::iron, .shade = 0.25});
        face(p, lie.at({{101, 20}, {111, 20}, {111, 58}, {101, 58}}),
             {.tone = 0.45, .palette = palettes::iron, .shade = 0.25});
        tube(p, lie.at({{52, 0}, {92, 0}, {128, 0}, {152, 0}}), {2, 9, 11.5, 10},
             {.palette = palettes::iron, .spacing = 1.7, .tone = 0.05, .contour = 0.9});
        for (const double u : {128.0, 143.0})
            p.dot(lie.at(u, -1), 1.6);
        // Clods thrown up before the blade.
        soil(p, {206, 292}, 92, 15);
        soil(p, {128, 298}, 44, 14);
        soil(p, {262, 296}, 54, 17);
        soil(p, {196, 304}, 50, 12);
    }};
