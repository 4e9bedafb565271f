#include "plates/engraver/Vessel.h"

namespace tambrelle::engraver {

using maths::clamp01;

namespace {
constexpr double turn = 360;
}

void mouth(Plate& plate, const LatheSurface& s, const MouthForm& form) {
    const Path rim = s.ring(1), opening = s.ring(1, 0, turn, -form.rim);
    plate.knockOut(rim, {.halo = 0, .shade = 0});
    plate.flat(rim, form.palette, 0.12);
    plate.contour(rim, 0.8);
    plate.knockOut(opening, {.halo = 0, .shade = 0});
    {
        const Plate::Clip clip(plate, opening);
        plate.flat(opening, form.palette, 0.7);
        constexpr std::size_t m = 14, n = 50;
        Patch wall(m, n);
        for (std::size_t i = 0; i < m; ++i)
            for (std::size_t j = 0; j < n; ++j) {
                const double down = fraction(i, m), degrees = maths::lerp(turn / 2, turn, fraction(j, n));
                wall.point(i, j) = s.at(1 - form.depth * down, degrees, -form.rim);
                const double lit = maths::cos(maths::radians(degrees));
                wall.tone(i, j) = clamp01(0.55 - 0.32 * lit + 0.3 * down);
            }
        plate.wash(wall, form.palette, 0.95);
        plate.hatch(wall, {.spacing = 1.8, .from = 0.2});
        for (int k = 0; k < form.staves; ++k) {
            const double degrees = turn / 2 + (k + 0.5) / form.staves * turn / 2;
            plate.stroke({s.at(1, degrees, -form.rim), s.at(1 - form.depth * 0.6, degrees, -form.rim)},
                         {.width = 0.6, .swell = 0, .fade = 0.3});
        }
        if (form.liquid) {
            const Path surface = s.ring(1 - form.level, 0, turn, -form.rim - 1);
            plate.knockOut(surface, {.halo = 0, .shade = 0});
            plate.flat(surface, *form.liquid, 0.5);
            plate.contour(surface, 0.7);
            const Point centre = centroid(surface);
            const Bounds b = boundsOf(surface);
            const Plate::Clip within(plate, surface);
            constexpr int ripples = 11;
            for (int k = 0; k < ripples; ++k) {
                const double v = (k + 0.5) / ripples * 2 - 1;
                const double y = centre.y + v * (b.bottom - b.top) / 2;
                const double w = (b.right - b.left) / 2 * std::sqrt(std::max(0.0, 1 - v * v));
                const double x = centre.x + plate.random.uniform(-w, 0.2 * w);
                const double span = plate.random.uniform(0.4, 0.9) * w;
                plate.stroke(spline({{x, y}, {x + span / 2, y - 0.6}, {x + span, y}}),
                             {.width = 0.65, .swell = 0.4, .fade = 0.4});
            }
        }
    }
    plate.contour(opening, 0.7);
}

} // namespace tambrelle::engraver
