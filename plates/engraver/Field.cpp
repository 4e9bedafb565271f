#include "plates/engraver/Field.h"

#include "plates/engraver/Maths.h"

#include <array>

namespace tambrelle::engraver {

namespace {

void addScaled(float* to, const float* from, float factor, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i)
        to[i] += factor * from[i];
}

// Runs `pass(read, write, length)` over every row, then over every column.
template <class Pass>
void separably(Field& field, const Pass& pass) {
    const int w = field.width(), h = field.height();
    std::vector<float> line(static_cast<std::size_t>(w)), out(line);
    for (int y = 0; y < h; ++y) {
        for (int x = 0; x < w; ++x)
            line[static_cast<std::size_t>(x)] = field(x, y);
        pass(line, out);
        for (int x = 0; x < w; ++x)
            field(x, y) = out[static_cast<std::size_t>(x)];
    }
    // Columns are taken sixteen at a time, so that memory is walked along its rows.
    constexpr int bundle = 16;
    std::array<std::vector<float>, bundle> lines;
    lines.fill(std::vector<float>(static_cast<std::size_t>(h)));
    out.assign(static_cast<std::size_t>(h), 0.0F);
    for (int x0 = 0; x0 < w; x0 += bundle) {
        const int n = std::min(bundle, w - x0);
        for (int y = 0; y < h; ++y)
            for (int k = 0; k < n; ++k)
                lines[static_cast<std::size_t>(k)][static_cast<std::size_t>(y)] = field(x0 + k, y);
        for (int k = 0; k < n; ++k) {
            pass(lines[static_cast<std::size_t>(k)], out);
            lines[static_cast<std::size_t>(k)].swap(out);
        }
        for (int y = 0; y < h; ++y)
            for (int k = 0; k < n; ++k)
                field(x0 + k, y) = lines[static_cast<std::size_t>(k)][static_cast<std::size_t>(y)];
    }
}

// A line with its ends repeated `radius` times beyond them.
void pad(const std::vector<float>& in, std::vector<float>& padded, std::size_t radius) {
    padded.resize(in.size() + 2 * radius);
    const auto begin = padded.begin(), middle = begin + static_cast<std::ptrdiff_t>(radius);
    std::fill(begin, middle, in.front());
    std::fill(std::copy(in.begin(), in.end(), middle), padded.end(), in.back());
}

// The row `y`, or the nearest there is.
const float* heldRow(const Field& field, int y) {
    return &field(0, std::clamp(y, 0, field.height() - 1));
}

// Both passes add the kernel's products in its order for every pixel; along rows they do it for many pixels
// at once.
void convolve(Field& field, const std::vector<float>& kernel) {
    const int w = field.width(), h = field.height(), radius = static_cast<int>(kernel.size() / 2);
    const auto n = static_cast<std::size_t>(w);
    Field across(w, h);
    std::vector<float> line(n), padded;
    for (int y = 0; y < h; ++y) {
        line.assign(&field(0, y), &field(0, y) + w);
        pad(line, padded, static_cast<std::size_t>(radius));
        float* out = &across(0, y);
        for (std::size_t k = 0; k < kernel.size(); ++k)
            addScaled(out, padded.data() + k, kernel[k], n);
    }
    for (int y = 0; y < h; ++y) {
        float* out = &field(0, y);
        std::fill(out, out + w, 0.0F);
        int row = y - radius;
        for (const float weight : kernel)
            addScaled(out, heldRow(across, row++), weight, n);
    }
}

void boxAcross(const std::vector<float>& in, std::vector<float>& out, int radius,
               std::vector<float>& padded) {
    const auto reach = static_cast<std::size_t>(radius);
    const std::size_t n = in.size(), breadth = 2 * reach + 1;
    pad(in, padded, reach + 1);
    double sum = 0;
    for (std::size_t k = 1; k <= breadth; ++k)
        sum += padded[k];
    const double share = 1.0 / static_cast<double>(breadth);
    for (std::size_t i = 0; i < n; ++i) {
        out[i] = static_cast<float>(sum * share);
        sum += padded[i + breadth + 1] - padded[i + 1];
    }
}

Field boxDown(const Field& in, int radius) {
    const int w = in.width(), h = in.height();
    Field out(w, h);
    std::vector<double> sums(static_cast<std::size_t>(w), 0.0);
    for (int k = -radius; k <= radius; ++k) {
        const float* row = heldRow(in, k);
        for (std::size_t x = 0; x < sums.size(); ++x)
            sums[x] += row[x];
    }
    const double share = 1.0 / (2.0 * radius + 1);
    for (int y = 0; y < h; ++y) {
        float* to = &out(0, y);
        const float *entering = heldRow(in, y + radius + 1), *leaving = heldRow(in, y - radius);
        for (std::size_t x = 0; x < sums.size(); ++x) {
            to[x] = static_cast<float>(sums[x] * share);
            sums[x] += entering[x] - leaving[x];
        }
    }
    return out;
}

template <class Better>
Field extreme(const Field& field, int radius, const Better& better) {
    Field result = field;
    separably(result, [radius, &better](const std::vector<float>& in, std::vector<float>& out) {
        const auto n = static_cast<std::ptrdiff_t>(in.size());
        for (std::ptrdiff_t i = 0; i < n; ++i) {
            float best = in[static_cast<std::size_t>(i)];
            const std::ptrdiff_t end = std::min<std::ptrdiff_t>(n - 1, i + radius);
            for (std::ptrdiff_t k = std::max<std::ptrdiff_t>(0, i - radius); k <= end; ++k)
                best = better(best, in[static_cast<std::size_t>(k)]);
            out[static_cast<std::size_t>(i)] = best;
        }
    });
    return result;
}

} // namespace

void blur(Field& field, double sigma) {
    if (sigma <= 0 || field.width() == 0 || field.height() == 0)
        return;
    if (sigma < 2.5) {
        const int radius = static_cast<int>(std::ceil(sigma * 3));
        std::vector<float> kernel;
        double sum = 0;
        for (int k = -radius; k <= radius; ++k)
            sum += maths::exp(-0.5 * k * k / (sigma * sigma));
        for (int k = -radius; k <= radius; ++k)
            kernel.push_back(static_cast<float>(maths::exp(-0.5 * k * k / (sigma * sigma)) / sum));
        convolve(field, kernel);
        return;
    }
    // Three boxes of radius r have the variance r (r + 1).
    const int radius = static_cast<int>(std::floor(std::sqrt(sigma * sigma + 0.25) - 0.5 + 0.5));
    const auto n = static_cast<std::size_t>(field.width());
    std::vector<float> line(n), other(n), padded;
    for (int y = 0; y < field.height(); ++y) {
        line.assign(&field(0, y), &field(0, y) + field.width());
        boxAcross(line, other, radius, padded);
        boxAcross(other, line, radius, padded);
        boxAcross(line, other, radius, padded);
        std::copy(other.begin(), other.end(), &field(0, y));
    }
    field = boxDown(boxDown(boxDown(field, radius), radius), radius);
}

Field dilated(const Field& field, int radius) {
    return extreme(field, radius, [](float a, float b) { return b > a ? b : a; });
}

Field eroded(const Field& field, int radius) {
    return extreme(field, radius, [](float a, float b) { return b < a ? b : a; });
}

Field distanceInside(const Field& mask) {
    // Felzenszwalb and Huttenlocher's lower envelope of parabolas, rows then columns, on squared distances.
    constexpr float far = 1e12F;
    Field d = mask;
    for (float& v : d.cells())
        v = v > 0.5F ? far : 0.0F;
    std::vector<std::size_t> hull;
    std::vector<double> bound;
    separably(d, [&hull, &bound](const std::vector<float>& in, std::vector<float>& out) {
        const std::size_t n = in.size();
        hull.assign(n, 0);
        bound.assign(n + 1, 0);
        std::size_t k = 0;
        const auto meet = [&in](std::size_t q, std::size_t v) {
            const double fq = in[q], fv = in[v], dq = static_cast<double>(q), dv = static_cast<double>(v);
            return ((fq + dq * dq) - (fv + dv * dv)) / (2 * dq - 2 * dv);
        };
        bound[0] = -1e20;
        bound[1] = 1e20;
        for (std::size_t q = 1; q < n; ++q) {
            double s = meet(q, hull[k]);
            while (k > 0 && s <= bound[k]) {
                --k;
                s = meet(q, hull[k]);
            }
            ++k;
            hull[k] = q;
            bound[k] = s;
            bound[k + 1] = 1e20;
        }
        k = 0;
        for (std::size_t q = 0; q < n; ++q) {
            while (bound[k + 1] < static_cast<double>(q))
                ++k;
            const double step = static_cast<double>(q) - static_cast<double>(hull[k]);
            out[q] = static_cast<float>(std::min(step * step + static_cast<double>(in[hull[k]]), 1e12));
        }
    });
    for (float& v : d.cells())
        v = std::sqrt(v);
    return d;
}

Field doubled(const Field& field) {
    const int w = field.width(), h = field.height();
    Field out(w * 2, h * 2);
    for (int y = 0; y < h * 2; ++y) {
        const int ya = std::clamp((y - 1) / 2, 0, h - 1), yb = std::min(ya + (y > 0 ? 1 : 0), h - 1);
        const float fy = y % 2 == 0 ? 0.75F : 0.25F;
        for (int x = 0; x < w * 2; ++x) {
            const int xa = std::clamp((x - 1) / 2, 0, w - 1), xb = std::min(xa + (x > 0 ? 1 : 0), w - 1);
            const float fx = x % 2 == 0 ? 0.75F : 0.25F;
            const float top = field(xa, ya) + (field(xb, ya) - field(xa, ya)) * fx;
            const float bottom = field(xa, yb) + (field(xb, yb) - field(xa, yb)) * fx;
            out(x, y) = top + (bottom - top) * fy;
        }
    }
    return out;
}

} // namespace tambrelle::engraver
