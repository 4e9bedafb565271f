#include "plates/engraver/Tube.h"

#include "plates/engraver/Light.h"

namespace tambrelle::engraver {

using maths::pi;
using maths::smooth;

Path tube(Plate& plate, const Path& spine, const Profile& radius, const TubeForm& form) {
    Path s = spline(spine);
    const double span = arcLength(s);
    const auto m = static_cast<std::size_t>(std::clamp(span / 1.6, 12.0, 400.0));
    s = resample(s, m);
    const Path n = normals(s), t = tangents(s);
    std::vector<double> r(m);
    const double a = plate.random.uniform(0, 6.28), b = plate.random.uniform(0, 6.28),
                 c = plate.random.uniform(0, 6.28);
    for (std::size_t i = 0; i < m; ++i) {
        const double x = fraction(i, m) * span;
        r[i] = radius(fraction(i, m)) *
               (1 + form.rough * (0.5 * maths::sin(x * 0.35 + a) + 0.35 * maths::sin(x * 0.8 + b) +
                                  0.25 * maths::sin(x * 1.7 + c)));
    }
    constexpr std::size_t k = 15;
    Patch patch(m, k);
    for (std::size_t i = 0; i < m; ++i) {
        const double step = span / static_cast<double>(m - 1);
        const double slope =
            (r[std::min(i + 1, m - 1)] - r[i > 0 ? i - 1 : 0]) / (step * (i > 0 && i + 1 < m ? 2 : 1));
        const double grit = form.rough > 0 ? plate.random.normal(0.05) : 0;
        for (std::size_t j = 0; j < k; ++j) {
            const double angle = -pi / 2 + pi * fraction(j, k);
            const double off = maths::sin(angle), z = maths::cos(angle);
            patch.point(i, j) = s[i] + n[i] * (r[i] * off) + t[i] * (form.bow * r[i] * z);
            const Point side = n[i] * off - t[i] * (slope * 0.8);
            patch.tone(i, j) = maths::clamp01(toneOf(unit(Vector3{side.x, side.y, z})) + form.tone + grit);
        }
    }
    Path left, right, end;
    for (std::size_t i = 0; i < m; ++i) {
        left.push_back(patch.point(i, 0));
        right.push_back(patch.point(i, k - 1));
    }
    for (std::size_t j = 0; j < k; ++j)
        end.push_back(patch.point(m - 1, j));
    Path outline = left;
    outline.insert(outline.end(), end.begin() + 1, end.end() - 1);
    outline = band(outline, right);
    outline.push_back(s[0]);
    plate.knockOut(outline, {.halo = form.halo, .shade = form.shade});
    plate.flat(outline, form.palette, 0.35);
    plate.wash(patch, form.palette, 0.78, 0, form.highlight);
    if (form.lines != Lines::none)
        plate.hatch(form.lines == Lines::across ? patch : patch.transposed(),
                    {.spacing = form.spacing * (form.lines == Lines::along ? 0.8 : 1.0),
                     .coverage = form.coverage,
                     .from = form.hatchFrom});
    if (form.cutEnd) {
        Path disc;
        for (std::size_t j = 0; j < 24; ++j) {
            const double angle = 2 * pi * static_cast<double>(j) / 24;
            disc.push_back(s[m - 1] + n[m - 1] * (r[m - 1] * maths::sin(angle)) +
                           t[m - 1] * (form.bow * r[m - 1] * maths::cos(angle)));
        }
        plate.knockOut(disc, {.halo = 0, .shade = 0});
        plate.flat(disc, form.palette, 0.14);
        plate.contour(disc, form.contour);
    }
    if (form.contour > 0)
        for (const int side : {-1, 1}) {
            const Path& edge = side < 0 ? left : right;
            std::vector<double> widths;
            for (const Point& p : n)
                widths.push_back(form.contour * (0.5 + 0.6 * smooth(-0.5, 0.9, side * dot(p, shadeSide))));
            plate.stroke(edge, widths, {.swell = 0.05, .fade = 0.05, .wobble = 0.06});
        }
    return s;
}

Path stem(Plate& plate, const Path& spine, const Profile& radius, const Palette& palette) {
    return tube(plate, spine, radius, {.palette = palette, .spacing = 1.7, .tone = 0.02});
}

Path twig(Plate& plate, const Path& spine, const Profile& radius, const Palette& palette) {
    return tube(plate, spine, radius,
                {.palette = palette, .spacing = 1.8, .tone = 0.08, .contour = 0.75, .rough = 0.16});
}

} // namespace tambrelle::engraver
