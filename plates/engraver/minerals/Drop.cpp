#include "plates/engraver/minerals/Drop.h"

namespace tambrelle::engraver {

using maths::smooth;

double mirrorTone(Vector3 n) {
    const double y = n.y + 0.15 * n.x;
    return maths::clamp01(0.08 + 0.75 * smooth(-0.12, 0.10, y) * (1 - smooth(0.18, 0.52, y)) +
                          0.30 * (1 - smooth(-0.95, -0.6, y)) + 0.55 * smooth(0.72, 0.95, y));
}

void liquid(Plate& plate, const Path& outline, double bevel, const Palette& palette, double tone) {
    ReliefForm r;
    r.palette = palette;
    r.bevel = bevel;
    r.lines = {0.1, 0.95, 0.3};
    r.crossFrom = 0.85;
    r.spacing = 1.6;
    r.coverage = 0.55;
    r.hatchFrom = 0.2;
    r.tone = tone;
    r.occlusion = false;
    r.toneAt = [](Vector3 n, double) { return mirrorTone(n); };
    relief(plate, outline, r);
}

void bead(Plate& plate, Point c, double rx, double ry, const Palette& palette) {
    const Path outline = closedSpline({{c.x - rx, c.y + ry * 0.3},
                                       {c.x - rx * 0.72, c.y - ry * 0.62},
                                       {c.x, c.y - ry},
                                       {c.x + rx * 0.72, c.y - ry * 0.62},
                                       {c.x + rx, c.y + ry * 0.3},
                                       {c.x + rx * 0.7, c.y + ry * 0.86},
                                       {c.x, c.y + ry},
                                       {c.x - rx * 0.7, c.y + ry * 0.86}},
                                      12);
    liquid(plate, outline, std::min(rx, ry) * 1.1, palette);
    plate.highlight(ellipse(c + Point{-rx * 0.38, -ry * 0.42}, rx * 0.22, ry * 0.16));
    plate.highlight(closedSpline({c + Point{-rx * 0.5, ry * 0.62}, c + Point{0, ry * 0.8},
                                  c + Point{rx * 0.5, ry * 0.62}, c + Point{0, ry * 0.68}},
                                 8));
}

} // namespace tambrelle::engraver
