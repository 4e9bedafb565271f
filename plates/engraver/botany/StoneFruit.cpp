#include "plates/engraver/botany/StoneFruit.h"

#include "plates/engraver/Relief.h"
#include "plates/engraver/Tube.h"

namespace tambrelle::engraver {

void stoneFruit(Plate& plate, Point from, Point centre, double r, const StoneFruitForm& f) {
    stem(plate, {from, lerp(from, centre + Point{0, -r}, 0.6), centre + Point{0, -r * 0.86}}, {2.6, 2.4},
         palettes::bark);
    const auto place = [&](double x, double y) { return centre + Point{x, y} * r; };
    // The outline is drawn in at the stalk, where the seam runs into the dimple.
    const Path outline =
        closedSpline({place(0.06, -0.86), place(0.44, -0.96), place(0.90, -0.50), place(1.00, 0.06),
                      place(0.76, 0.68), place(0.10, 1.00), place(-0.60, 0.82), place(-0.98, 0.24),
                      place(-0.92, -0.46), place(-0.40, -0.96)});
    const auto seam = [=](double y) { return centre.x + r * 0.5 * (0.1 - (y * y - 0.7)); };
    relief(plate, outline,
           {.palette = f.skin,
            .bevel = r,
            .spacing = 2.3,
            .coverage = 0.38,
            .hatchFrom = 0.34,
            .tint = [=](Point at, double, double, Colour colour) {
                const Point d = at - centre;
                const double sunny = maths::smooth(0.1 * r, 0.9 * r, d.x * 0.7 - d.y * 0.5);
                const double off = at.x - seam(d.y / r);
                return mix(mix(colour, f.cheek, f.blush * sunny), f.skin.dark,
                           0.45 * maths::exp(-off * off / 16));
            }});
    Path line;
    for (int k = 0; k <= 16; ++k) {
        const double y = -0.88 + 1.84 * k / 16;
        line.push_back({seam(y), centre.y + y * r});
    }
    plate.stroke(line, {.width = 1.5, .swell = 0.2, .fade = 0.4});
    for (int k = 0; k < 70; ++k) {
        const double a = plate.random.uniform(0, 360), q = std::sqrt(plate.random.uniform()) * 0.9;
        plate.dot(polar(centre, a, q * r), 0.4, sepia, 0.5);
    }
}

void stoneFruitHalf(Plate& plate, Point c, double radius, const StoneFruitForm& f) {
    const double r = radius / 60;
    const auto place = [&](double x, double y) { return c + Point{x, y} * r; };
    const Path half = ellipse(c, 60 * r, 54 * r);
    plate.knockOut(half);
    plate.flat(half, f.flesh.middle);
    plate.flat(ellipse(c, 56 * r, 50 * r), f.flesh.light);
    plate.flat(ellipse(place(2, 3), 48 * r, 42 * r), f.heart, 0.6);
    for (int k = 0; k < 44; ++k) {
        const Point d = direction(k * 360.0 / 44);
        const double out = 48 + k % 3 * 2;
        plate.stroke({place(d.x * 38, d.y * 33), place(d.x * out, d.y * (out - 5))},
                     {.width = 0.6, .swell = 0.3, .fade = 0.5});
    }
    plate.contour(half, 1);
    const Path stone = closedSpline({place(0, -36), place(20, -20), place(26, 4), place(15, 27), place(0, 34),
                                     place(-15, 27), place(-26, 4), place(-20, -20)});
    relief(plate, stone, {.palette = f.stone, .bevel = 26 * r, .coverage = 0.4, .tone = 0.08});
    if (f.furrows > 0) {
        const Plate::Clip within(plate, stone);
        for (int k = 0; k < f.furrows; ++k) {
            const Point at = place(plate.random.around(22), plate.random.around(28));
            const double way = 90 + plate.random.around(40);
            plate.stroke(spline({at, polar(at, way, 4 * r), polar(at, way + plate.random.around(50), 9 * r)}),
                         {.width = 1.5, .swell = 0.2, .fade = 0.5});
        }
        return;
    }
    plate.stroke(spline({place(0, -34), place(9, 0), place(0, 32)}), {.width = 1.4});
    plate.stroke(spline({place(0, -34), place(14, 0), place(0, 32)}), {.width = 0.9});
}

} // namespace tambrelle::engraver
