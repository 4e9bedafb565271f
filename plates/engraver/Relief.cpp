#include "plates/engraver/Relief.h"

#include "plates/engraver/Light.h"

namespace tambrelle::engraver {

using maths::clamp01;
using maths::smooth;

namespace {

constexpr int scale = Plate::scale;

Point placeOf(const Plate::Window& w, int x, int y) {
    return {static_cast<double>(x + w.x) / scale, static_cast<double>(y + w.y) / scale};
}

Field heightsOf(const ReliefForm& form, const Plate::Window& window, const Field& mask) {
    const Field depth = distanceInside(mask);
    Field z(window.width, window.height);
    double deepest = 0;
    for (const float d : depth.cells())
        deepest = std::max(deepest, static_cast<double>(d) / scale);
    const double bevel = std::max(0.5, std::min(form.bevel, deepest));
    for (int y = 0; y < window.height; ++y)
        for (int x = 0; x < window.width; ++x) {
            const double d = static_cast<double>(depth(x, y)) / scale;
            if (form.height) {
                z(x, y) =
                    mask(x, y) > 0.02F ? static_cast<float>(form.height(placeOf(window, x, y), d)) : 0.0F;
            } else {
                const double t = clamp01(d / bevel);
                z(x, y) = static_cast<float>(bevel * std::sqrt(1 - (1 - t) * (1 - t)) * form.heightScale);
            }
        }
    if (form.soften > 0)
        blur(z, form.height ? form.soften * scale * 0.25 : form.soften * scale * bevel / 16);
    return z;
}

Field tonesOf(const ReliefForm& form, const Plate::Window& window, const Field& z, const Field& mask) {
    Field tones(window.width, window.height);
    for (int y = 0; y < window.height; ++y)
        for (int x = 0; x < window.width; ++x) {
            if (mask(x, y) <= 0.02F)
                continue;
            const Vector3 n = unit(Vector3{-static_cast<double>(slopeX(z, x, y)) * scale,
                                           -static_cast<double>(slopeY(z, x, y)) * scale, 1});
            tones(x, y) = static_cast<float>(
                (form.toneAt ? form.toneAt(n, static_cast<double>(z(x, y))) : toneOf(n)) + form.tone);
        }
    if (form.occlusion)
        for (const auto& [sigma, strength] : {std::pair{4.0, 0.02}, std::pair{10.0, 0.01}}) {
            Field around = z;
            blur(around, sigma * scale);
            for (int y = 0; y < window.height; ++y)
                for (int x = 0; x < window.width; ++x)
                    tones(x, y) += static_cast<float>(std::clamp(
                        (static_cast<double>(around(x, y)) - static_cast<double>(z(x, y))) * strength, -0.05,
                        0.25));
        }
    for (std::size_t i = 0; i < tones.cells().size(); ++i)
        tones.cells()[i] = mask.cells()[i] > 0.02F ? std::clamp(tones.cells()[i], 0.0F, 1.0F) : 0.0F;
    return tones;
}

void inkCreases(Plate& plate, const ReliefSurface& s) {
    Field z = s.heights;
    blur(z, 0.45 * scale);
    Field ink(s.window.width, s.window.height);
    for (int y = 1; y + 1 < s.window.height; ++y)
        for (int x = 1; x + 1 < s.window.width; ++x) {
            if (s.mask(x, y) < 0.5F)
                continue;
            const double bend =
                -static_cast<double>(z(x - 1, y) + z(x + 1, y) + z(x, y - 1) + z(x, y + 1) - 4 * z(x, y)) *
                scale * scale;
            ink(x, y) = static_cast<float>(smooth(0.55, 1.1, bend) * 0.55 + smooth(0.5, 1.0, -bend) * 0.8);
        }
    blur(ink, 0.6);
    plate.layInk(s.window, ink);
}

} // namespace

std::optional<double> ReliefSurface::toneAt(Point p) const {
    const int x = static_cast<int>(p.x * scale) - window.x, y = static_cast<int>(p.y * scale) - window.y;
    if (!mask.holds(x, y) || mask(x, y) < 0.5F)
        return std::nullopt;
    return static_cast<double>(tones(x, y));
}

double ReliefSurface::heightAt(Point p) const {
    const int x = static_cast<int>(p.x * scale) - window.x, y = static_cast<int>(p.y * scale) - window.y;
    return mask.holds(x, y) ? static_cast<double>(heights(x, y)) : 0;
}

ReliefSurface relief(Plate& plate, const Path& outline, const ReliefForm& form) {
    ReliefSurface s;
    s.outline = outline;
    s.window = Plate::windowOf(boundsOf(outline), 3);
    if (s.window.width < 4 || s.window.height < 4)
        return s;
    s.mask = plate.maskOf(outline, s.window);
    s.heights = heightsOf(form, s.window, s.mask);
    s.tones = tonesOf(form, s.window, s.heights, s.mask);
    plate.knockOut(outline, {.halo = form.halo, .shade = form.shade});
    Grid<Colour> colours(s.window.width, s.window.height);
    for (int y = 0; y < s.window.height; ++y)
        for (int x = 0; x < s.window.width; ++x) {
            if (s.mask(x, y) <= 0.004F)
                continue;
            const double tone = static_cast<double>(s.tones(x, y));
            Colour c = ramp(form.palette, tone * form.washStrength, form.highlight);
            if (form.tint)
                c = form.tint(placeOf(s.window, x, y), static_cast<double>(s.heights(x, y)), tone, c);
            colours(x, y) = c;
        }
    plate.layWash(s.window, colours, s.mask);
    if (form.hatched) {
        PlaneCuts cuts{
            .normal = form.lines, .spacing = form.spacing, .from = form.hatchFrom, .coverage = form.coverage};
        Field ink = cutInk(s.window, s.heights, s.tones, s.mask, cuts);
        if (form.crossFrom < 1) {
            cuts.normal = form.crossLines;
            cuts.spacing *= 1.15;
            cuts.from = form.crossFrom;
            cuts.coverage *= 0.9;
            cuts.seed = 9;
            const Field second = cutInk(s.window, s.heights, s.tones, s.mask, cuts);
            for (std::size_t i = 0; i < ink.cells().size(); ++i)
                ink.cells()[i] = std::max(ink.cells()[i], second.cells()[i]);
        }
        for (std::size_t i = 0; i < ink.cells().size(); ++i)
            ink.cells()[i] *= s.mask.cells()[i];
        plate.layInk(s.window, ink);
    }
    if (form.creases)
        inkCreases(plate, s);
    if (form.contour > 0)
        plate.contour(outline, {.width = form.contour, .lit = form.lit});
    return s;
}

} // namespace tambrelle::engraver
