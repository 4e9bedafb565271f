#include "plates/engraver/zoology/Foot.h"

#include "plates/engraver/Face.h"

namespace tambrelle::engraver {

void hoof(Plate& plate, Point s, const HoofForm& f) {
    const double w = f.width, h = f.height;
    FaceForm horn;
    horn.tone = f.tone;
    horn.palette = f.palette;
    horn.lines = 100;
    horn.spacing = 1.5;
    horn.contour = 0.8;
    horn.halo = 0.2;
    horn.highlight = 0.04;
    if (!f.cloven) {
        face(plate,
             {{s.x - w * 0.74, s.y - h},
              {s.x + w * 0.8, s.y - h + 1.2},
              {s.x + w, s.y - 0.4},
              {s.x + w * 0.9, s.y},
              {s.x - w * 1.5, s.y},
              {s.x - w * 1.42, s.y - 1.2}},
             horn);
        plate.stroke({{s.x - w * 0.82, s.y - h + 0.4}, {s.x, s.y - h - 0.2}, {s.x + w * 0.84, s.y - h + 1.6}},
                     {.width = 0.7, .swell = 0.1, .fade = 0.1});
        return;
    }
    // The inner claw shows before the outer one.
    face(plate,
         closedSpline({{s.x - w * 0.95, s.y - h * 0.85},
                       {s.x - w * 0.1, s.y - h * 0.8},
                       {s.x - w * 0.3, s.y - h * 0.2},
                       {s.x - w * 0.5, s.y},
                       {s.x - w * 1.75, s.y},
                       {s.x - w * 1.6, s.y - h * 0.3}},
                      5),
         horn);
    horn.tone = f.tone + 0.08;
    face(plate,
         closedSpline({{s.x - w * 0.45, s.y - h * 0.92},
                       {s.x + w * 0.75, s.y - h * 0.9},
                       {s.x + w * 1.02, s.y - h * 0.25},
                       {s.x + w * 0.9, s.y},
                       {s.x - w * 0.95, s.y},
                       {s.x - w * 0.95, s.y - h * 0.28}},
                      5),
         horn);
}

void toes(Plate& plate, Point s, const PawForm& f) {
    for (int k = 0; k < f.toes; ++k) {
        const double q = f.toes > 1 ? static_cast<double>(k) / (f.toes - 1) : 0.5;
        const Point tip{s.x - f.length * (1.0 - 0.62 * q), s.y - f.height * 0.1};
        if (k > 0)
            plate.stroke(spline({{tip.x + 1.6, tip.y - f.height * 0.62},
                                 {tip.x - 0.2, tip.y - f.height * 0.32},
                                 {tip.x - 0.5, tip.y + 0.4}},
                                6),
                         {.width = 0.8, .swell = 0.5, .fade = 0.2, .wobble = 0.05});
        if (f.claws > 0)
            plate.ink({{tip.x - 0.2, tip.y - f.height * 0.22},
                       {tip.x - f.claws, tip.y + f.height * 0.1},
                       {tip.x + 0.5, tip.y + f.height * 0.02}},
                      sepia, 0.9);
    }
}

} // namespace tambrelle::engraver
