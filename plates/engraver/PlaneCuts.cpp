#include "plates/engraver/PlaneCuts.h"

#include "plates/engraver/Noise.h"

namespace tambrelle::engraver {

using maths::clamp01;
using maths::smooth;

double lineInk(double phase, double frequency, double tone, double spacing, double from, double coverage,
               double gamma, double widest) {
    if (tone <= from)
        return 0;
    int octave = 0;
    const double mantissa = std::frexp(frequency * spacing, &octave); // in 0.5 ... 1
    const double period = std::ldexp(1.0, octave - 1);
    const double above = 2 * mantissa - 1; // 0: lines stand at the spacing; 1: twice as dense
    const double place = phase / period;
    const double line = std::floor(place);
    const double distance = std::fabs(place - line - 0.5) * period / frequency;
    const bool odd = std::fmod(std::fabs(line), 2.0) == 1.0;
    const double crowd = smooth(0.25, 0.85, above);
    const double fade = odd ? 1 - crowd : 1 + 0.55 * crowd;
    const double share = clamp01((tone - from) / (1 - from));
    const double width = std::min(widest, (gamma == 1 ? share : maths::pow(share, gamma)) * coverage *
                                              period / frequency * fade);
    return clamp01((width / 2 - distance) * Plate::scale + 0.5) * clamp01(width / 0.16);
}

Field cutInk(const Plate::Window& window, const Field& heights, const Field& tones, const Field& mask,
             const PlaneCuts& cuts) {
    const int w = window.width, h = window.height;
    Field ink(w, h);
    const auto& all = tones.cells();
    if (std::none_of(all.begin(), all.end(), [&cuts](float t) { return static_cast<double>(t) > cuts.from; }))
        return ink;
    Field z = heights;
    blur(z, 1.6);
    const Noise noise(cuts.seed);
    Field phase(w, h);
    // The wobble is broad; it is sampled every 8 pixels and drawn straight between.
    constexpr int step = 8;
    Field sway(w / step + 2, h / step + 2);
    for (int y = 0; y < sway.height(); ++y)
        for (int x = 0; x < sway.width(); ++x)
            sway(x, y) = static_cast<float>(cuts.wobble * noise(x * step / (24.0 * Plate::scale) + 3.1,
                                                                y * step / (24.0 * Plate::scale) + 7.7));
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) {
            const double px = static_cast<double>(x + window.x) / Plate::scale;
            const double py = static_cast<double>(y + window.y) / Plate::scale;
            const float fx = static_cast<float>(x % step) / step, fy = static_cast<float>(y % step) / step;
            const int sx = x / step, sy = y / step;
            const float top = sway(sx, sy) + (sway(sx + 1, sy) - sway(sx, sy)) * fx;
            const float bottom = sway(sx, sy + 1) + (sway(sx + 1, sy + 1) - sway(sx, sy + 1)) * fx;
            phase(x, y) = static_cast<float>((cuts.normal.x * px + cuts.normal.y * py +
                                              cuts.normal.z * static_cast<double>(z(x, y))) /
                                             cuts.spacing) +
                          top + (bottom - top) * fy;
        }
    Field frequency(w, h);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) {
            const float gx = slopeX(phase, x, y) * Plate::scale, gy = slopeY(phase, x, y) * Plate::scale;
            frequency(x, y) = std::min(std::sqrt(gx * gx + gy * gy), 8.0F);
        }
    blur(frequency, 1.2);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
            if (mask(x, y) > 0.5F)
                ink(x, y) =
                    static_cast<float>(lineInk(static_cast<double>(phase(x, y)),
                                               std::clamp(static_cast<double>(frequency(x, y)), 0.02, 8.0),
                                               static_cast<double>(tones(x, y)), cuts.spacing, cuts.from,
                                               cuts.coverage, cuts.gamma, cuts.widest));
    return ink;
}

} // namespace tambrelle::engraver
