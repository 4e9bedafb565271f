#include "plates/engraver/Lathe.h"
#include "plates/engraver/Relief.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/carpentry/Iron.h"
#include "plates/engraver/carpentry/Wood.h"

using namespace tambrelle::engraver;

// The shepherd's crook: a staff bent over in a wide hook above, with a small iron scoop at its foot to throw
// clods.
static const Subject subject{
    "day_240_houlette", [](Plate& p) {
        // Staff and hook in one bent piece.
        pole(p,
             {{108, 262},
              {160, 208},
              {214, 150},
              {240, 116},
              {250, 86},
              {272, 66},
              {302, 68},
              {320, 92},
              {316, 122},
              {296, 136},
              {278, 128}},
             {8, 7.6, 7.6, 8, 8.5, 8.8, 8.8, 8.4, 7.6, 6.6, 5.6});
        ball(p, {275, 124}, 8, {.palette = palettes::wood});
        for (const Point at : {Point{159, 208}, Point{166, 201}})
            p.stroke({at + Point{-6, -6}, at + Point{6, 6}}, Pen{.width = 2.4, .swell = 0.1, .fade = 0.1});
        // The scoop.
        ReliefForm scoop;
        scoop.palette = palettes::iron;
        scoop.lines = {0.7, 0.62, 0.35};
        scoop.contour = 1.1;
        scoop.occlusion = false;
        scoop.height = [](Point at, double depth) {
            const Point q = rotate(at - Point{66, 304}, 46);
            return 0.022 * q.y * q.y + 0.3 * std::min(depth, 4.0);
        };
        const Placement lie{{66, 304}, -46};
        relief(p,
               closedSpline(lie.at({{-6, 0},
                                    {2, -20},
                                    {26, -29},
                                    {52, -26},
                                    {64, -12},
                                    {66, 0},
                                    {64, 12},
                                    {52, 26},
                                    {26, 29},
                                    {2, 20}}),
                            8),
               scoop);
        tube(p, lie.at({{34, 0}, {54, 0}, {76, 0}, {96, 0}}), {2, 8, 11, 10.4},
             {.palette = palettes::iron, .spacing = 1.7, .tone = 0.05, .contour = 0.9});
        for (const double u : {76.0, 88.0})
            p.dot(lie.at(u, -1), 1.5);
    }};
