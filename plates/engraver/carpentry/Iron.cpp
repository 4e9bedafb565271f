#include "plates/engraver/carpentry/Iron.h"

namespace tambrelle::engraver {

ReliefSurface forged(Plate& plate, const Path& outline, const ForgedForm& form) {
    ReliefForm r;
    r.palette = form.palette;
    r.bevel = form.bevel;
    r.heightScale = form.heightScale;
    r.tone = form.tone;
    r.lines = form.lines;
    r.contour = form.contour;
    r.occlusion = false;
    r.spacing = 2.0;
    return relief(plate, outline, r);
}

void ferrule(Plate& plate, Point from, Point to, const Profile& radius, const Palette& palette) {
    LatheForm ring;
    ring.direction = angleOf(to - from);
    ring.tilt = 0.12;
    ring.palette = palette;
    ring.spacing = 1.6;
    lathe(plate, from, length(to - from), radius, ring);
}

void turnedHandle(Plate& plate, Point from, double degrees, double length, const Profile& radius,
                  const Palette& palette) {
    LatheForm turned;
    turned.direction = degrees;
    turned.tilt = 0.1;
    turned.palette = palette;
    turned.lines = Lines::along;
    turned.spacing = 1.7;
    lathe(plate, from, length, radius, turned);
}

} // namespace tambrelle::engraver
