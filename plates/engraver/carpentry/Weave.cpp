#include "plates/engraver/carpentry/Weave.h"

namespace tambrelle::engraver {

using maths::clamp01;

void weave(Plate& plate, const Woven& surface, const WeaveForm& form) {
    const auto rows = static_cast<double>(form.rows), stakes = static_cast<double>(form.stakes);
    // Between the rods it is dark.
    constexpr std::size_t side = 40;
    Path outline;
    for (const int edge : {0, 1, 2, 3})
        for (std::size_t k = 0; k < side; ++k) {
            const double t = static_cast<double>(k) / side;
            outline.push_back(edge == 0   ? surface.at(0, t)
                              : edge == 1 ? surface.at(t, 1)
                              : edge == 2 ? surface.at(1, 1 - t)
                                          : surface.at(1 - t, 0));
        }
    plate.knockOut(outline);
    plate.flat(outline, form.palette, 0.85);
    plate.ink(outline, sepia, 0.35);
    for (std::size_t r = 0; r < form.rows; ++r) {
        const double u0 = static_cast<double>(r) / rows, u1 = static_cast<double>(r + 1) / rows;
        const double middle = (u0 + u1) / 2, half = (u1 - u0) / 2;
        for (std::size_t s = r % 2; s <= form.stakes; s += 2) {
            const double v0 = (static_cast<double>(s) - 0.98) / stakes;
            const double v1 = (static_cast<double>(s) + 0.98) / stakes;
            if (v1 <= 0.01 || v0 >= 0.99)
                continue;
            constexpr std::size_t n = 11;
            Path upper, lower;
            for (std::size_t k = 0; k < n; ++k) {
                const double t = fraction(k, n), v = clamp01(maths::lerp(v0, v1, t));
                const double swell = maths::sin(maths::pi * clamp01((v - v0) / (v1 - v0)));
                const double breadth = half * (0.52 + form.bulge * swell + 0.13);
                upper.push_back(surface.at(middle + breadth, v));
                lower.push_back(surface.at(middle - breadth, v));
            }
            const Path rod = band(upper, lower);
            const double v = clamp01((v0 + v1) / 2);
            const double tone = surface.tone(middle, v) + plate.random.around(0.06);
            plate.knockOut(rod, {.halo = 0.1, .shade = 0});
            constexpr std::size_t m = 5;
            Patch patch(m, n);
            for (std::size_t i = 0; i < m; ++i)
                for (std::size_t j = 0; j < n; ++j) {
                    const double across = fraction(i, m), t = fraction(j, n);
                    patch.point(i, j) = lerp(upper[j], lower[j], across);
                    patch.tone(i, j) =
                        clamp01(tone + 0.28 * (across - 0.45) + 0.34 * maths::pow(std::fabs(2 * t - 1), 2.5));
                }
            plate.wash(patch, form.palette, 0.85);
            plate.hatch(patch.transposed(), {.spacing = 1.9, .from = 0.34});
            plate.contour(rod, form.contour);
        }
    }
}

Woven wovenLathe(const LatheSurface& surface, double from, double to) {
    constexpr double left = 182, right = -2;
    return {[surface, from, to](double u, double v) {
                return surface.at(maths::lerp(from, to, u), maths::lerp(left, right, v));
            },
            [surface, from, to](double u, double v) {
                return surface.toneAt(maths::lerp(from, to, u), maths::lerp(left, right, v));
            }};
}

namespace {

// The marks of twisted strands on a tube already drawn.
void lay(Plate& plate, const Path& spine, double radius, double step, double slant, double width) {
    const double span = arcLength(spine);
    const auto count = static_cast<std::size_t>(std::max(3.0, span / step));
    const Path s = resample(spine, count);
    const Path t = tangents(s), n = normals(s);
    for (std::size_t i = 1; i + 1 < count; ++i) {
        const Point a = s[i] - n[i] * radius - t[i] * (slant * 0.5);
        const Point b = s[i] + n[i] * radius + t[i] * (slant * 0.5);
        plate.stroke(
            spline({a, lerp(a, b, 0.3) - t[i] * (slant * 0.10), lerp(a, b, 0.7) + t[i] * (slant * 0.10), b},
                   6),
            {.width = width, .swell = 0.15, .fade = 0.05, .wobble = 0});
    }
}

} // namespace

void plait(Plate& plate, const Path& spine, double radius, const Palette& palette) {
    const double r = radius, end = radius * 0.45; // the rods' ends are tucked in
    const Path s = tube(plate, spine, {end, r, r, r, r, r, r, r, r, r, end},
                        {.palette = palette, .spacing = 1.8, .contour = 0.8, .bow = 0});
    const Path middle(s.begin() + static_cast<std::ptrdiff_t>(s.size() / 24),
                      s.end() - static_cast<std::ptrdiff_t>(s.size() / 24));
    lay(plate, middle, radius * 0.97, radius * 1.5, radius * 2.6, 0.8);
}

void rope(Plate& plate, const Path& spine, double radius, const Palette& palette) {
    TubeForm form;
    form.palette = palette;
    form.lines = Lines::none;
    form.contour = 0.75;
    const Path s = tube(plate, spine, radius, form);
    lay(plate, s, radius, radius * 1.15, radius * 1.8, 0.65);
}

} // namespace tambrelle::engraver
