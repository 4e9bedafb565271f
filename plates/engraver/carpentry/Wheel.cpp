#include "plates/engraver/carpentry/Wheel.h"

#include "plates/engraver/Lathe.h"
#include "plates/engraver/carpentry/Wood.h"

namespace tambrelle::engraver {

namespace {

constexpr std::size_t around = 90;

struct Rings {
    Point centre;
    const WheelForm& form;
    Path at(double radius, double depth) const {
        Path out = ellipse(centre + form.depth * depth, radius * form.squash, radius, around);
        out.push_back(out[0]);
        return out;
    }
};

double toneAt(std::size_t j) {
    return maths::clamp01(0.42 + 0.28 * maths::cos(2 * maths::pi * fraction(j, around + 1) - 0.9));
}

// A closed strip between two rings; its hole lets the ground be seen.
void strip(Plate& plate, const Path& outer, const Path& inner, const Palette& palette, double tone) {
    constexpr std::size_t m = 5;
    Patch patch(m, around + 1);
    for (std::size_t i = 0; i < m; ++i)
        for (std::size_t j = 0; j <= around; ++j) {
            patch.point(i, j) = lerp(outer[j], inner[j], fraction(i, m));
            patch.tone(i, j) = maths::clamp01(toneAt(j) + tone);
        }
    plate.knockOut(band(outer, inner), {.halo = 0.3});
    plate.wash(patch, palette, 0.8);
    plate.hatch(patch, {.spacing = 1.7, .from = 0.28});
}

} // namespace

void wheel(Plate& plate, Point centre, const WheelForm& form) {
    const Rings rings{centre, form};
    const double inner = form.radius - form.rim;
    const Path outside = rings.at(form.radius, 0), back = rings.at(form.radius, 1);
    strip(plate, rings.at(inner, 1), rings.at(form.radius, 1), palettes::wood, 0.25);
    strip(plate, back, outside, palettes::iron, 0.05);
    plate.contour(back, {.width = 0.8, .closed = false});
    for (int k = 0; k < form.spokes; ++k) {
        const Point d = direction(360.0 * k / form.spokes + form.turned);
        const Point ray{d.x * form.squash, d.y};
        pole(plate,
             {centre + ray * (form.radius * form.hub * 0.6) + form.depth * 0.4,
              centre + ray * (inner + 1) + form.depth * 0.3},
             {form.rim * 0.42, form.rim * 0.32});
    }
    strip(plate, outside, rings.at(inner, 0), palettes::wood, 0);
    plate.contour(outside, {.width = 0.95, .closed = false});
    plate.contour(rings.at(inner, 0), {.width = 0.75, .closed = false});
    for (int k = 0; k < form.spokes; k += 2) { // joints of the felloes
        const Point d = direction(360.0 * (k + 0.5) / form.spokes + form.turned);
        const Point ray{d.x * form.squash, d.y};
        plate.stroke({centre + ray * inner, centre + ray * form.radius},
                     {.width = 0.6, .swell = 0, .fade = 0});
    }
    const double hub = form.radius * form.hub;
    LatheForm turnedHub;
    turnedHub.direction = angleOf(form.depth * -1);
    turnedHub.tilt = 0.6;
    turnedHub.palette = palettes::wood;
    turnedHub.spacing = 1.6;
    const double span = length(form.depth) * 3;
    const LatheSurface nave =
        lathe(plate, centre + form.depth, span, {hub, hub * 1.1, hub * 0.95, hub * 0.8}, turnedHub);
    const Path end = nave.ring(1);
    plate.knockOut(end, {.halo = 0, .shade = 0});
    plate.flat(end, palettes::wood, 0.2);
    plate.contour(end, 0.8);
    const Path axle = nave.ring(1, 0, 360, -hub * 0.4);
    plate.flat(axle, palettes::iron, 0.7);
    plate.ink(axle, sepia, 0.55);
    plate.contour(axle, 0.7);
}

} // namespace tambrelle::engraver
