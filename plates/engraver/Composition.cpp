#include "plates/engraver/Composition.h"

#include "plates/engraver/Noise.h"

namespace tambrelle::engraver {

namespace {

constexpr int scale = Plate::scale;

// What is drawn, as pixel bounds; anything this faint would be lost on paper.
Plate::Window inkedWindow(const Plate& plate) {
    const Layer& wash = plate.washLayer();
    const Layer& ink = plate.inkLayer();
    int x0 = wash.right(), y0 = wash.bottom(), x1 = wash.left() - 1, y1 = wash.top() - 1;
    for (int y = wash.top(); y < wash.bottom(); ++y)
        for (int x = wash.left(); x < wash.right(); ++x) {
            const Pixel& w = wash(x, y);
            const float darkest = std::min({w.r, w.g, w.b}) + 1 - w.a;
            if (ink(x, y).a < 0.15F && darkest > 0.93F)
                continue;
            x0 = std::min(x0, x);
            x1 = std::max(x1, x);
            y0 = std::min(y0, y);
            y1 = std::max(y1, y);
        }
    if (x1 < x0)
        return {};
    return {x0, y0, x1 - x0 + 1, y1 - y0 + 1};
}

// What is fainter than the window counts may go on beyond it: it fades out over this many units.
constexpr double fadeBreadth = 4;

Plate::Window widened(const Plate::Window& w) {
    return Plate::windowOf({static_cast<double>(w.x) / scale, static_cast<double>(w.y) / scale,
                            static_cast<double>(w.x + w.width) / scale,
                            static_cast<double>(w.y + w.height) / scale},
                           fadeBreadth);
}

// 1 within the window, 0 at the rim of the wider one.
std::vector<float> fading(int from, int span, int wideFrom, int wideSpan) {
    std::vector<float> shares;
    for (int i = wideFrom; i < wideFrom + wideSpan; ++i) {
        const int beyond = std::max({from - i, i - (from + span - 1), 0});
        shares.push_back(static_cast<float>(maths::smooth(fadeBreadth * scale, 0, beyond)));
    }
    return shares;
}

void fade(Field (&channels)[3], const Plate::Window& window, const Plate::Window& wide) {
    const std::vector<float> across = fading(window.x, window.width, wide.x, wide.width),
                             down = fading(window.y, window.height, wide.y, wide.height);
    for (Field& f : channels)
        for (int y = 0; y < wide.height; ++y)
            for (int x = 0; x < wide.width; ++x)
                f(x, y) = 1 - (1 - f(x, y)) * across[static_cast<std::size_t>(x)] *
                                  down[static_cast<std::size_t>(y)];
}

struct Painting {
    Field channel[3];
};

// Wash over paper, blurred a little and granulated, under the ink.
Painting paint(const Plate& plate, const Plate::Window& w, double granulation) {
    Painting picture;
    const Layer& wash = plate.washLayer();
    const Layer& ink = plate.inkLayer();
    for (Field& f : picture.channel)
        f = Field(w.width, w.height);
    for (int y = 0; y < w.height; ++y)
        for (int x = 0; x < w.width; ++x) {
            const Pixel& p = wash(x + w.x, y + w.y);
            picture.channel[0](x, y) = p.r + 1 - p.a;
            picture.channel[1](x, y) = p.g + 1 - p.a;
            picture.channel[2](x, y) = p.b + 1 - p.a;
        }
    for (Field& f : picture.channel)
        blur(f, 0.25 * scale);
    // Pigment gathers in the paper's hollows: one broad and one fine unevenness, sampled coarsely.
    constexpr int step = 4;
    const Noise broad(7), fine(11);
    Field grain(w.width / step + 2, w.height / step + 2);
    for (int y = 0; y < grain.height(); ++y)
        for (int x = 0; x < grain.width(); ++x) {
            const double ux = static_cast<double>(x * step) / scale,
                         uy = static_cast<double>(y * step) / scale;
            grain(x, y) = static_cast<float>(
                granulation *
                std::clamp(0.6 * broad(ux / 11, uy / 11) + 0.35 * fine(ux / 2.8, uy / 2.8), -2.0, 2.0));
        }
    for (int y = 0; y < w.height; ++y)
        for (int x = 0; x < w.width; ++x) {
            const float fx = static_cast<float>(x % step) / step, fy = static_cast<float>(y % step) / step;
            const int gx = x / step, gy = y / step;
            const float top = grain(gx, gy) + (grain(gx + 1, gy) - grain(gx, gy)) * fx;
            const float bottom = grain(gx, gy + 1) + (grain(gx + 1, gy + 1) - grain(gx, gy + 1)) * fx;
            const float n = 1 + top + (bottom - top) * fy;
            const Pixel& k = ink(x + w.x, y + w.y);
            const float inks[3] = {k.r, k.g, k.b};
            for (int c = 0; c < 3; ++c) {
                float& v = picture.channel[c](x, y);
                const float washed = std::clamp(1 - (1 - v) * n, 0.0F, 1.0F);
                // Ink lets a quarter of the wash through; a stronger wash makes a darker line.
                v = std::clamp(washed * (1 - k.a) + washed * inks[c] * 0.25F + inks[c] * 0.75F, 0.0F, 1.0F);
            }
        }
    return picture;
}

// One axis of the reduction: which source pixels make up each target pixel.
struct Tap {
    int first = 0;
    std::vector<float> weights;
};

// Lanczos-2, widened to the step: crisp lines without the stair of a box.
std::vector<Tap> taps(int targets, double step, double origin) {
    std::vector<Tap> out;
    const double reach = 2 * std::max(step, 1.0);
    for (int i = 0; i < targets; ++i) {
        const double centre = origin + (i + 0.5) * step;
        Tap tap;
        tap.first = static_cast<int>(std::ceil(centre - reach - 0.5));
        const int last = static_cast<int>(std::floor(centre + reach - 0.5));
        double sum = 0;
        std::vector<double> w;
        for (int s = tap.first; s <= last; ++s) {
            const double x = (s + 0.5 - centre) / std::max(step, 1.0) * maths::pi;
            const double v = std::fabs(x) < 1e-6 ? 1 : maths::sin(x) / x * maths::sin(x / 2) / (x / 2);
            w.push_back(v);
            sum += v;
        }
        for (const double v : w)
            tap.weights.push_back(static_cast<float>(v / sum));
        out.push_back(std::move(tap));
    }
    return out;
}

} // namespace

bool cutOff(const Plate& plate) {
    const Layer& ink = plate.inkLayer();
    const auto inked = [&ink](int x, int y) { return ink(x, y).a > 0.3F; };
    for (int y = ink.top(); y < ink.bottom(); ++y)
        if (inked(ink.left(), y) || inked(ink.right() - 1, y))
            return true;
    for (int x = ink.left(); x < ink.right(); ++x)
        if (inked(x, ink.top()) || inked(x, ink.bottom() - 1))
            return true;
    return false;
}

Picture compose(const Plate& plate, const Composition& how) {
    Picture picture;
    picture.width = how.sheetWidth * how.pixels;
    picture.height = how.sheetHeight * how.pixels;
    picture.rgb.assign(static_cast<std::size_t>(picture.width * picture.height) * 3, 255);
    const Plate::Window inked = inkedWindow(plate);
    if (inked.width == 0)
        return picture;
    const double k = std::min({how.largest, (how.sheetWidth - 2 * how.marginX) * scale / inked.width,
                               (how.sheetHeight - 2 * how.marginY) * scale / inked.height});
    const double step = scale / (k * how.pixels); // source pixels a target pixel
    const Plate::Window w = widened(inked);
    Painting painting = paint(plate, w, how.granulation);
    fade(painting.channel, inked, w);
    const double originX = inked.x - w.x + inked.width / 2.0 - picture.width * step / 2;
    const double originY = inked.y - w.y + inked.height / 2.0 - picture.height * step / 2;
    const std::vector<Tap> across = taps(picture.width, step, originX);
    const std::vector<Tap> down = taps(picture.height, step, originY);
    const int before = std::max(0, -across.front().first);
    const int after =
        std::max(0, across.back().first + static_cast<int>(across.back().weights.size()) - w.width);
    for (int c = 0; c < 3; ++c) {
        const Field& source = painting.channel[c];
        Field narrow(picture.width, w.height);
        // Beyond the window lies white paper.
        std::vector<float> row(static_cast<std::size_t>(before + w.width + after), 1.0F);
        for (int y = 0; y < w.height; ++y) {
            std::copy(&source(0, y), &source(0, y) + w.width, row.begin() + before);
            for (int x = 0; x < picture.width; ++x) {
                const Tap& tap = across[static_cast<std::size_t>(x)];
                const float* from = row.data() + before + tap.first;
                float sum = 0;
                for (std::size_t i = 0; i < tap.weights.size(); ++i)
                    sum += tap.weights[i] * from[i];
                narrow(x, y) = sum;
            }
        }
        const std::vector<float> blank(static_cast<std::size_t>(picture.width), 1.0F);
        std::vector<float> sums(blank.size());
        for (int y = 0; y < picture.height; ++y) {
            const Tap& tap = down[static_cast<std::size_t>(y)];
            std::fill(sums.begin(), sums.end(), 0.0F);
            int s = tap.first;
            for (const float weight : tap.weights) {
                const float* from = s >= 0 && s < w.height ? &narrow(0, s) : blank.data();
                for (std::size_t x = 0; x < sums.size(); ++x)
                    sums[x] += weight * from[x];
                ++s;
            }
            unsigned char* to = &picture.rgb[static_cast<std::size_t>(y * picture.width) * 3];
            for (std::size_t x = 0; x < sums.size(); ++x) {
                const float level = std::clamp(sums[x], 0.0F, 1.0F) * 255.0F + 0.5F;
                to[x * 3 + static_cast<std::size_t>(c)] = static_cast<unsigned char>(level);
            }
        }
    }
    return picture;
}

} // namespace tambrelle::engraver
