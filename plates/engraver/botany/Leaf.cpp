#include "plates/engraver/botany/Leaf.h"

#include "plates/engraver/Light.h"

namespace tambrelle::engraver {

using maths::clamp01;
using maths::pi;
using maths::smooth;

double Margin::operator()(double q) const {
    if (kind == Kind::entire)
        return 1;
    const double turns = q * count, x = turns - std::floor(turns);
    const double fade = smooth(0, 0.1, q) * smooth(0, 0.06, 1 - q);
    switch (kind) {
    case Kind::serrate:
        return 1 + depth * fade * (x - 0.75);
    case Kind::dentate:
        return 1 + depth * fade * (1 - std::fabs(2 * x - 1) - 0.6);
    case Kind::crenate:
        return 1 + depth * fade * (std::sqrt(clamp01(1 - (2 * x - 1) * (2 * x - 1))) - 0.7);
    case Kind::lobed:
        return 1 - depth * fade * maths::pow(0.5 + 0.5 * maths::cos(2 * pi * turns), 1.3);
    case Kind::wavy:
        return 1 + depth * fade * maths::sin(2 * pi * turns);
    case Kind::entire:
        break;
    }
    return 1;
}

namespace {

// A leaf's blade as a surface: q along the midrib, v from the midrib (0) to the margin (1 right, -1 left).
class Blade {
public:
    Blade(const Path& spine, const LeafForm& form)
        : form_(form), spine_(resample(spline(spine), count)), normals_(engraver::normals(spine_)) {}
    Point at(double q, double v, bool withMargin) const {
        q = clamp01(q);
        const double x = q * (count - 1);
        const auto i = std::min(static_cast<std::size_t>(x), count - 2);
        const double f = x - static_cast<double>(i);
        const double width = form_.width * form_.shape(q) * (withMargin ? form_.margin(q) : 1) *
                             (v > 0 ? form_.right : form_.left);
        return lerp(spine_[i], spine_[i + 1], f) + lerp(normals_[i], normals_[i + 1], f) * (v * width);
    }
    Point sideways() const { return normals_[count / 2]; }
    double length() const { return arcLength(spine_); }

private:
    static constexpr std::size_t count = 160;
    const LeafForm& form_;
    Path spine_;
    Path normals_;
};

} // namespace

Path leaf(Plate& plate, const Path& spine, const LeafForm& form) {
    const Blade blade(spine, form);
    const double size = blade.length();
    const auto edge = static_cast<std::size_t>(std::clamp(size * 2.5, 60.0, 300.0));
    Path right, left;
    for (std::size_t i = 0; i < edge; ++i) {
        right.push_back(blade.at(fraction(i, edge), 1, true));
        left.push_back(blade.at(fraction(i, edge), -1, true));
    }
    Path outline = band(right, left);
    const int lit = form.lit != 0 ? form.lit : (dot(blade.sideways(), shadeSide) < 0 ? 1 : -1);
    plate.knockOut(outline, {.halo = form.halo, .shade = form.shade});
    {
        const Plate::Clip clip(plate, outline);
        plate.flat(outline, form.palette, 0.3);
        const auto m = static_cast<std::size_t>(std::clamp(size * 0.7, 24.0, 90.0));
        const std::size_t n = form.width > 8 ? 16 : 10;
        const bool toothed = form.margin.kind != Margin::Kind::entire;
        for (const int side : {1, -1}) {
            Patch patch(m, n);
            for (std::size_t i = 0; i < m; ++i)
                for (std::size_t j = 0; j < n; ++j) {
                    const double s =
                        form.parallel ? fraction(i, m) : -form.slant + (1 + form.slant) * fraction(i, m);
                    const double v = fraction(j, n) * (1 + (toothed ? form.margin.depth * 0.5 : 0));
                    const double lead = form.parallel ? 0 : form.slant * (1 - 0.75 * clamp01(s));
                    const double q = form.parallel ? s : s + lead * maths::pow(v, 1.48);
                    patch.point(i, j) = blade.at(q, side * v, false);
                    const double phase = (q - lead * v) * form.veins;
                    const double pucker =
                        form.veins > 0 ? form.pucker * maths::cos(2 * pi * phase) * smooth(0.02, 0.3, v) : 0;
                    const double bulge = (v - 0.55) / 0.25;
                    patch.tone(i, j) = clamp01((side == lit ? 0.16 : 0.50) + form.tone + pucker +
                                               0.30 * (1 - smooth(0, 0.35, v)) + 0.10 * smooth(0.75, 1, v) +
                                               0.128 * (q - 0.5) - 0.12 * maths::exp(-bulge * bulge) +
                                               0.2 * (1 - smooth(0, 0.12, q)));
                }
            plate.wash(patch, form.palette, 0.72, 0.02, 0.12);
            plate.hatch(form.parallel ? patch.transposed() : patch, {.spacing = form.spacing,
                                                                     .coverage = form.coverage,
                                                                     .from = form.parallel ? 0.28 : 0.24,
                                                                     .gamma = 1});
            if (form.parallel)
                continue;
            const int veins = static_cast<int>(form.veins);
            for (int k = 0; k < veins; ++k) {
                const double s = (k + 0.35) / form.veins * 0.93;
                Path vein =
                    patch.row(std::clamp((s + form.slant) / (1 + form.slant) * static_cast<double>(m - 1),
                                         0.0, static_cast<double>(m) - 1.01));
                vein.pop_back();
                plate.stroke(vein,
                             {.width = form.width > 8 ? 0.62 : 0.5, .swell = 0, .fade = 0.8, .wobble = 0.05});
            }
        }
    }
    if (form.midrib > 0) {
        Path rib;
        for (std::size_t i = 0; i < 60; ++i)
            rib.push_back(blade.at(0.985 * fraction(i, 60), 0, true));
        plate.stroke(rib, {.width = form.midrib, .swell = 0, .fade = 0.9, .wobble = 0.05});
    }
    if (form.contour > 0)
        plate.contour(outline, form.contour);
    return outline;
}

Path leaflet(Plate& plate, Point base, Point tip, const LeafletForm& form) {
    const Point d = tip - base, side = rightOf(unit(d));
    constexpr std::size_t n = 22;
    const Path s = resample(spline({base, (base + tip) * 0.5 + side * form.bend, tip}), n);
    const Path normal = normals(s);
    Path right, left;
    for (std::size_t i = 0; i < n; ++i) {
        const double w = form.shape(fraction(i, n)) * form.width;
        right.push_back(s[i] + normal[i] * w);
        left.push_back(s[i] - normal[i] * w);
    }
    Path outline = band(right, left);
    plate.knockOut(outline, {.halo = form.halo, .shade = form.shade});
    plate.flat(outline, form.palette, form.tone + 0.12);
    const Path& dark = dot(normal[n / 2], shadeSide) > 0 ? right : left;
    plate.flat(band(s, dark), form.palette, form.tone + 0.42);
    if (form.hatched && length(d) > 5)
        for (std::size_t i = 3; i < 19; i += 2)
            plate.stroke({s[i], lerp(s[i], dark[std::min(i + 2, n - 1)], 0.5),
                          lerp(s[i], dark[std::min(i + 3, n - 1)], 0.85)},
                         {.width = 0.38, .swell = 0, .fade = 0.8, .wobble = 0});
    if (form.midrib)
        plate.stroke(Path(s.begin(), s.end() - 2), {.width = 0.4, .swell = 0, .fade = 0.8, .wobble = 0});
    if (form.contour > 0)
        plate.contour(outline, {.width = form.contour, .wobble = 0.05});
    return outline;
}

} // namespace tambrelle::engraver
