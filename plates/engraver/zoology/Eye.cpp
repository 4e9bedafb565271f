#include "plates/engraver/zoology/Eye.h"

namespace tambrelle::engraver {

void eye(Plate& plate, Point c, const EyeForm& f) {
    const double r = f.radius;
    const Point inner = direction(f.degrees);
    // Upwards on the plate, square to the line of the lids.
    const Point up = rightOf(inner).y < 0 ? rightOf(inner) : rightOf(inner) * -1;
    const auto at = [&](double along, double above) { return c + inner * (along * r) + up * (above * r); };
    const bool lids = f.lid > 0;
    const Path opening =
        lids ? closedSpline({at(-1.05, -0.05), at(-0.55, f.open * 0.86), at(0.3, f.open), at(1.2, -0.15),
                             at(0.4, -f.open * 0.9), at(-0.5, -f.open * 0.75)},
                            6)
             : ellipse(c, r, r * 0.96, 24);
    plate.knockOut(opening, {.halo = 0.25, .shade = 0});
    plate.flat(opening, f.iris);
    {
        const Plate::Clip clip(plate, opening);
        const double p = r * f.pupilSize;
        switch (f.pupil) {
        case EyeForm::Pupil::round:
            plate.ink(ellipse(c, p, p, 20));
            break;
        case EyeForm::Pupil::bar:
            plate.ink(turned(ellipse(c, p * 1.25, p * 0.5, 20), f.degrees, c));
            break;
        case EyeForm::Pupil::slit:
            plate.ink(ellipse(c, p * 0.38, p * 1.5, 20));
            break;
        }
        // The lid's shadow across the top of the eye.
        if (lids)
            plate.stroke(spline({at(-1.1, 0.3), at(0, f.open * 0.95), at(1.2, 0.2)}, 6),
                         {.width = r * 0.5, .swell = 0.1, .fade = 0.1, .wobble = 0, .alpha = 0.7});
    }
    plate.contour(opening, {.width = lids ? 0.6 : 0.75, .lit = 0.9, .wobble = 0});
    plate.highlight(ellipse(at(0.26, 0.32), r * 0.27, r * 0.25, 12));
    if (!lids)
        return;
    plate.stroke(spline({at(-1.35, 0.1), at(-0.6, f.open * 1.02), at(0.3, f.open * 1.12), at(1.35, -0.2)}, 6),
                 {.width = f.lid, .swell = 0.3, .fade = 0.35, .wobble = 0});
    plate.stroke(spline({at(-1.2, f.open * 0.9), at(-0.2, f.open * 1.75), at(0.9, f.open * 1.2)}, 6),
                 {.width = f.lid * 0.55, .swell = 0.5, .fade = 0.6, .wobble = 0});
    plate.stroke(spline({at(-0.8, -f.open * 1.25), at(0, -f.open * 1.45), at(0.9, -f.open * 1.05)}, 6),
                 {.width = f.lid * 0.5, .swell = 0.5, .fade = 0.6, .wobble = 0});
}

} // namespace tambrelle::engraver
