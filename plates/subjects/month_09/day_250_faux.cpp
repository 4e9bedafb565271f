#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/carpentry/Wood.h"

using namespace tambrelle::engraver;

// The scythe: a bent snath with two grips, a long blade at a right angle to it, ring and wedge at the heel.
static const Subject subject{
    "day_250_faux", [](Plate& p) {
        pole(p, {{92, 302}, {102, 254}, {130, 196}, {146, 142}, {150, 98}, {154, 72}},
             {6, 5.8, 6, 5.8, 5.6, 5.8});
        const auto grip = [&p](Point at, Point arm) {
            const Point end = at + arm;
            pole(p, {at, end}, 3.6);
            pole(p, {end + Point{-4, 16}, end, end + Point{3, -16}}, {4.4, 5, 4.2});
            face(p, {at + Point{-8, -5}, at + Point{8, -6}, at + Point{8, 5}, at + Point{-8, 6}},
                 {.tone = 0.5, .palette = palettes::iron, .shade = 0.3});
        };
        grip({109, 240}, {-34, -12});
        grip({143, 158}, {36, -8});
        blade(p, {{145, 86}, {184, 66}, {230, 66}, {282, 96}, {318, 164}},
              {{150, 106}, {186, 92}, {228, 94}, {270, 116}, {318, 164}}, {.tone = 0.22});
        face(p, {{143, 82}, {163, 74}, {167, 96}, {148, 105}},
             {.tone = 0.5, .palette = palettes::iron, .shade = 0.3});
        for (const double y : {86.0, 97.0})
            p.stroke({{144, y + 1}, {151, y + 3}, {158.5, y}}, Pen{.width = 3, .swell = 0, .fade = 0});
        ground(p, 60, 160, 300, 4);
    }};
