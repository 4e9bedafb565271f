#include "plates/engraver/botany/Roots.h"

namespace tambrelle::engraver {

void rootlets(Plate& plate, Point from, int count, double degrees, double spread, double length,
              double width) {
    for (int k = 0; k < count; ++k) {
        const double f = count > 1 ? k / static_cast<double>(count - 1) - 0.5 : 0;
        const double a = degrees + f * spread + plate.random.around(6);
        const double reach = length * plate.random.uniform(0.6, 1.1);
        const Point first = polar(from, a, reach * 0.4);
        const Point second = polar(first, a + plate.random.around(30), reach * 0.35);
        const Point third = polar(second, a + plate.random.uniform(-18, 24), reach * 0.3);
        plate.stroke(spline({from, first, second, third}),
                     {.width = width, .swell = 0, .fade = 0.95, .wobble = 0.3});
    }
}

void tendril(Plate& plate, Point from, double degrees, const TendrilForm& form) {
    const Point d = direction(degrees), n = rightOf(d) * form.hand;
    Path path = spline({from, from + d * (form.length * 0.5) - n * 3, from + d * form.length}, 20);
    const Point centre = from + d * form.length + n * (form.radius * 0.9);
    constexpr std::size_t steps = 90;
    for (std::size_t k = 1; k < steps; ++k) {
        const double turn = fraction(k, steps), angle = turn * form.turns * 2 * maths::pi;
        const double r = form.radius * (1 - 0.75 * turn) * (0.9 + 0.1 * turn);
        path.push_back(centre - n * (r * maths::cos(angle)) + d * (r * maths::sin(angle)));
    }
    plate.stroke(path, {.width = form.width * 2, .swell = 0, .fade = 0.5, .wobble = 0});
    plate.stroke(
        path,
        {.width = form.width * 0.85, .swell = 0, .fade = 0.5, .wobble = 0, .colour = form.palette.middle});
}

} // namespace tambrelle::engraver
