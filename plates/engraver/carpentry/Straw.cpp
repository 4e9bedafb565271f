#include "plates/engraver/carpentry/Straw.h"

#include "plates/engraver/Tube.h"

namespace tambrelle::engraver {

namespace {

Point within(Plate& plate, Point centre, double radiusX, double radiusY) {
    const double a = plate.random.uniform(0, 360), q = std::sqrt(plate.random.uniform());
    const Point d = direction(a);
    return {centre.x + radiusX * q * d.x, centre.y + radiusY * q * d.y};
}

} // namespace

void straw(Plate& plate, Point centre, double radiusX, double radiusY, const StrawForm& form) {
    for (int k = 0; k < form.count; ++k) {
        const Point p = within(plate, centre, radiusX, radiusY);
        const double degrees = plate.random.normal(form.spread / 1.6) + (plate.random.chance(0.5) ? 0 : 180);
        const double half = form.length * plate.random.uniform(0.3, 0.55);
        const Point sag{0, plate.random.uniform(-2, 1)};
        TubeForm stalk;
        stalk.palette = form.palette;
        stalk.lines = Lines::none;
        stalk.tone = plate.random.uniform(-0.05, 0.25);
        stalk.contour = 0.5;
        stalk.shade = 0.2;
        stalk.halo = 0.2;
        tube(plate, {polar(p, degrees, -half), p + sag, polar(p, degrees, half)},
             {form.radius, form.radius, form.radius * 0.6}, stalk);
    }
}

void grains(Plate& plate, Point centre, double radiusX, double radiusY, int count, double size) {
    for (int k = 0; k < count; ++k) {
        const Point p = within(plate, centre, radiusX, radiusY);
        const double degrees = plate.random.uniform(0, 180);
        const Path grain = turned(ellipse(p, size, size * 0.55, 14), degrees, p);
        plate.knockOut(grain, {.halo = 0.1, .shade = 0.2, .offset = {0.5, 0.8}});
        plate.flat(grain, palettes::straw, plate.random.uniform(0.2, 0.5));
        plate.contour(grain, 0.5);
        plate.stroke({polar(p, degrees, -size * 0.7), polar(p, degrees, size * 0.7)}, Pen{.width = 0.35});
    }
}

} // namespace tambrelle::engraver
