#include "plates/engraver/Face.h"

namespace tambrelle::engraver {

using maths::clamp01;
using maths::smooth;

namespace {

// A net of points over `outline` whose rows run in the direction `degrees`.
Patch netOver(const Path& outline, double degrees) {
    const Point d = direction(degrees), n = rightOf(d), c = centroid(outline);
    double a0 = 1e9, a1 = -1e9, b0 = 1e9, b1 = -1e9;
    for (const Point p : outline) {
        a0 = std::min(a0, dot(p - c, d));
        a1 = std::max(a1, dot(p - c, d));
        b0 = std::min(b0, dot(p - c, n));
        b1 = std::max(b1, dot(p - c, n));
    }
    const auto rows = static_cast<std::size_t>(std::clamp((b1 - b0) / 2.5 + 2, 4.0, 200.0));
    const auto columns = static_cast<std::size_t>(std::clamp((a1 - a0) / 3 + 2, 8.0, 200.0));
    Patch patch(rows, columns);
    for (std::size_t i = 0; i < rows; ++i)
        for (std::size_t j = 0; j < columns; ++j)
            patch.point(i, j) = c + d * maths::lerp(a0, a1, fraction(j, columns)) +
                                n * maths::lerp(b0, b1, fraction(i, rows));
    return patch;
}

} // namespace

void face(Plate& plate, const Path& outline, const FaceForm& form) {
    if (outline.size() < 3)
        return;
    plate.knockOut(outline, {.halo = form.halo, .shade = form.shade});
    const double degrees = form.lines ? *form.lines : angleOf(outline[1] - outline[0]);
    Patch patch = netOver(outline, degrees);
    const Point c = centroid(outline), g = direction(form.gradientTo), d = direction(degrees), n = rightOf(d);
    double reach = 1e-9;
    for (const Point p : patch.points)
        reach = std::max(reach, std::fabs(dot(p - c, g)));
    for (std::size_t i = 0; i < patch.rows; ++i) {
        const double streak = form.grain > 0 ? plate.random.normal(form.grain * 0.4) : 0;
        for (std::size_t j = 0; j < patch.columns; ++j) {
            const Point p = patch.point(i, j) - c;
            const double fibre =
                form.grain > 0
                    ? form.grain * 0.5 * maths::sin(dot(p, n) * 1.9 + 2 * maths::sin(dot(p, d) * 0.05))
                    : 0;
            patch.tone(i, j) = clamp01(form.tone + form.gradient * dot(p, g) / reach + fibre + streak);
        }
    }
    {
        const Plate::Clip clip(plate, outline);
        plate.wash(patch, form.palette, 0.78, 0, form.highlight);
        if (form.coverage > 0)
            plate.hatch(patch, {.spacing = form.spacing,
                                .coverage = form.coverage,
                                .from = form.hatchFrom,
                                .jitter = 0.18,
                                .wobble = form.wobble});
        if (form.crossed) {
            Patch second = netOver(outline, degrees + 55);
            std::fill(second.tones.begin(), second.tones.end(), clamp01(form.tone - 0.15));
            plate.hatch(second, {.spacing = form.spacing * 1.2,
                                 .coverage = form.coverage * 0.8,
                                 .from = form.hatchFrom,
                                 .jitter = 0.18});
        }
    }
    if (form.contour > 0)
        plate.contour(outline, {.width = form.contour, .wobble = form.wobble});
}

void blade(Plate& plate, const Path& back, const Path& edge, const BladeForm& form) {
    constexpr std::size_t n = 44, m = 9;
    const Path a = resample(spline(back), n), b = resample(spline(edge), n);
    Patch patch(m, n);
    for (std::size_t i = 0; i < m; ++i)
        for (std::size_t j = 0; j < n; ++j) {
            const double v = fraction(i, m), u = fraction(j, n);
            patch.point(i, j) = lerp(a[j], b[j], v);
            patch.tone(i, j) = clamp01(form.tone + 0.30 * (1 - smooth(0, form.rib, v)) * (v > 0.08 ? 1 : 0) -
                                       0.12 * smooth(0.6, 1, v) + 0.10 * maths::sin(u * 7) + 0.05 * u);
        }
    const Path outline = band(a, b);
    plate.knockOut(outline, {.shade = form.shade});
    plate.flat(outline, form.palette, 0.3);
    plate.wash(patch, form.palette, 0.85);
    Patch across = patch.transposed();
    for (double& t : across.tones)
        t = clamp01(t + 0.05);
    plate.hatch(across, {.spacing = 1.9, .coverage = 0.45, .from = 0.22});
    plate.stroke(patch.row(1), {.width = 0.55, .swell = 0.05, .fade = 0.1});
    plate.contour(outline, form.contour);
}

void surface(Plate& plate, const Path& from, const Path& to, const SurfaceForm& form) {
    constexpr std::size_t n = 48, m = 24;
    const Path a = resample(spline(from), n), b = resample(spline(to), n);
    Patch patch(m, n);
    for (std::size_t i = 0; i < m; ++i)
        for (std::size_t j = 0; j < n; ++j) {
            patch.point(i, j) = lerp(a[j], b[j], fraction(i, m));
            patch.tone(i, j) = form.tone ? clamp01(form.tone(fraction(j, n), fraction(i, m))) : 0.35;
        }
    const Path outline = band(a, b);
    plate.knockOut(outline, {.halo = form.halo, .shade = form.shade});
    {
        const Plate::Clip clip(plate, outline);
        plate.flat(outline, form.palette, 0.35);
        plate.wash(patch, form.palette, 0.85);
        plate.hatch(form.linesAlong ? patch : patch.transposed(),
                    {.spacing = form.spacing, .coverage = form.coverage, .from = 0.2});
    }
    if (form.contour > 0)
        plate.contour(outline, form.contour);
}

} // namespace tambrelle::engraver
