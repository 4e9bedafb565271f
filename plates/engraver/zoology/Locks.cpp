#include "plates/engraver/zoology/Locks.h"

#include "plates/engraver/Patch.h"

namespace tambrelle::engraver {

void lock(Plate& plate, const Path& spine, const Profile& width, const LockForm& form) {
    constexpr std::size_t n = 60;
    const Path s = resample(spline(spine), n);
    const Path side = normals(s);
    Path right, left;
    for (std::size_t i = 0; i < n; ++i) {
        right.push_back(s[i] + side[i] * width(fraction(i, n)));
        left.push_back(s[i] - side[i] * width(fraction(i, n)));
    }
    const Path outline = band(right, left);
    plate.knockOut(outline, {.halo = form.halo, .shade = form.shade});
    plate.flat(outline, form.palette, form.tone);
    // The lit side of the lock.
    const Path& lit = side[n / 2].x + side[n / 2].y < 0 ? right : left;
    Path ridge;
    for (std::size_t i = 0; i < n; ++i)
        ridge.push_back(lerp(s[i], lit[i], 0.2));
    plate.flat(band(ridge, lit), form.palette, form.tone * 0.72);
    for (int k = 0; k < form.strands; ++k) {
        const double at = plate.random.uniform(-1, 1), drift = plate.random.uniform(-0.25, 0.25);
        const auto from = static_cast<std::size_t>(plate.random.uniform(0, 0.5) * (n - 1));
        const auto to = static_cast<std::size_t>(plate.random.uniform(0.6, 1) * (n - 1));
        if (to < from + 5)
            continue;
        Path hair;
        for (std::size_t i = from; i <= to; ++i) {
            const double v = at + drift * static_cast<double>(i - from) / static_cast<double>(to - from);
            hair.push_back(s[i] + side[i] * (width(fraction(i, n)) * v * 1.02));
        }
        plate.stroke(hair,
                     {.width = plate.random.uniform(0.4, 1.0), .swell = 0.3, .fade = 0.8, .wobble = 0.3});
    }
    plate.stroke(right, {.width = form.contour, .swell = 0.1, .fade = 0.5, .wobble = 0.2});
    plate.stroke(left, {.width = form.contour, .swell = 0.1, .fade = 0.5, .wobble = 0.2});
}

void mane(Plate& plate, const Path& crest, const ManeForm& form) {
    const Path c = spline(crest);
    for (int k = 0; k < form.locks; ++k) {
        const double q = form.locks > 1 ? static_cast<double>(k) / (form.locks - 1) : 0;
        const Point root = along(c, q);
        Point fall = lerp(form.fallFirst, form.fallLast, q);
        fall = fall + unit(fall) * (form.belly * maths::sin(q * maths::pi));
        const Point sway{plate.random.around(2), plate.random.around(2)};
        lock(plate, {root, root + Point{1.5, length(fall) * 0.42} + fall * 0.1, root + fall + sway},
             {form.width, form.width, form.width * 0.12}, form.lock);
    }
}

} // namespace tambrelle::engraver
