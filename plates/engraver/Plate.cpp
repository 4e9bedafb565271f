#include "plates/engraver/Plate.h"

#include "plates/engraver/Light.h"

namespace tambrelle::engraver {

using maths::smooth;

namespace {
constexpr Colour shadowColour{0.30, 0.22, 0.14};
constexpr int border = Plate::bleed * Plate::scale;
} // namespace

Plate::Plate(std::string_view name)
    : random(name),
      wash_(width * scale, height * scale, border),
      ink_(width * scale, height * scale, border),
      rasteriser_(width * scale + 2 * border, height * scale + 2 * border) {}

double Plate::clipAt(int x, int y) const {
    if (clips_.empty())
        return 1;
    const Mask& m = clips_.back();
    const int cx = x - m.window.x, cy = y - m.window.y;
    return m.cover.holds(cx, cy) ? static_cast<double>(m.cover(cx, cy)) : 0.0;
}

template <class Paint>
void Plate::fill(const Path& outline, const Paint& paint) {
    pixels_.resize(outline.size());
    for (std::size_t i = 0; i < outline.size(); ++i)
        pixels_[i] = outline[i] * scale + Point{border, border};
    if (clips_.empty()) {
        rasteriser_.fill(pixels_,
                         [&paint](int x, int y, float cover) { paint(x - border, y - border, cover); });
        return;
    }
    const Mask& m = clips_.back();
    rasteriser_.fill(pixels_, [&m, &paint](int column, int row, float cover) {
        const int x = column - border, y = row - border;
        const int cx = x - m.window.x, cy = y - m.window.y;
        if (!m.cover.holds(cx, cy))
            return;
        const float c = cover * m.cover(cx, cy);
        if (c > 0.004F)
            paint(x, y, c);
    });
}

Plate::Clip::Clip(Plate& plate, const Path& outline) : plate_(plate) {
    Mask mask;
    mask.window = windowOf(boundsOf(outline), 0.5);
    mask.cover = plate.maskOf(outline, mask.window);
    plate_.clips_.push_back(std::move(mask));
}

Plate::Clip::~Clip() {
    plate_.clips_.pop_back();
}

Plate::Window Plate::windowOf(const Bounds& b, double margin) {
    const auto edge = [](double v, int limit) {
        return std::clamp(static_cast<int>(std::clamp(v, -1e6, 1e6)), -border, limit + border);
    };
    const int x0 = edge(std::floor((b.left - margin) * scale), width * scale);
    const int y0 = edge(std::floor((b.top - margin) * scale), height * scale);
    const int x1 = edge(std::ceil((b.right + margin) * scale), width * scale);
    const int y1 = edge(std::ceil((b.bottom + margin) * scale), height * scale);
    return {x0, y0, std::max(0, x1 - x0), std::max(0, y1 - y0)};
}

Field Plate::maskOf(const Path& outline, const Window& window) {
    Field mask(window.width, window.height);
    fill(outline, [&mask, &window](int x, int y, float cover) {
        if (mask.holds(x - window.x, y - window.y))
            mask(x - window.x, y - window.y) = cover;
    });
    return mask;
}

void Plate::knockOut(const Path& outline, const KnockOut& how) {
    if (how.shade > 0 && shadows_)
        for (const double k : {1.0, 0.5})
            fill(moved(outline, how.offset * k), [this, &how](int x, int y, float cover) {
                wash_(x, y).tint(shadowColour, static_cast<float>(how.shade * 0.5) * cover);
            });
    const auto erase = [this](int x, int y, float cover) { ink_(x, y).erase(cover); };
    fill(outline, erase);
    if (how.halo > 0 && outline.size() > 2) {
        Path ring = outline;
        ring.push_back(outline[0]);
        const Path n = normals(ring);
        Path inner, outer;
        for (std::size_t i = 0; i < ring.size(); ++i) {
            outer.push_back(ring[i] + n[i] * how.halo);
            inner.push_back(ring[i] - n[i] * how.halo);
        }
        fill(band(std::move(outer), inner), erase);
    }
    fill(outline, [this](int x, int y, float cover) { wash_(x, y).cover(white, cover); });
}

void Plate::flat(const Path& outline, Colour colour, double alpha) {
    fill(outline, [this, colour, alpha](int x, int y, float cover) {
        wash_(x, y).cover(colour, static_cast<float>(alpha) * cover);
    });
}

void Plate::underwash(const Path& outline, Colour colour, double alpha) {
    fill(outline, [this, colour, alpha](int x, int y, float cover) {
        wash_(x, y).underlay(colour, static_cast<float>(alpha) * cover);
    });
}

void Plate::triangle(const Point (&c)[3], const Colour (&colours)[3]) {
    const double area = cross(c[1] - c[0], c[2] - c[0]);
    if (std::fabs(area) < 1e-9)
        return;
    const double left = std::min({c[0].x, c[1].x, c[2].x}), right = std::max({c[0].x, c[1].x, c[2].x});
    const double top = std::min({c[0].y, c[1].y, c[2].y}), bottom = std::max({c[0].y, c[1].y, c[2].y});
    const int x0 = std::max(wash_.left(), static_cast<int>(std::floor(std::max(left, -1e6))));
    const int x1 = std::min(wash_.right() - 1, static_cast<int>(std::floor(std::min(right, 1e6))));
    const int y0 = std::max(wash_.top(), static_cast<int>(std::floor(std::max(top, -1e6))));
    const int y1 = std::min(wash_.bottom() - 1, static_cast<int>(std::floor(std::min(bottom, 1e6))));
    for (int y = y0; y <= y1; ++y)
        for (int x = x0; x <= x1; ++x) {
            const Point p{x + 0.5, y + 0.5};
            const double k1 = cross(p - c[0], c[2] - c[0]) / area;
            const double k2 = cross(c[1] - c[0], p - c[0]) / area;
            const double k0 = 1 - k1 - k2;
            if (k0 < -1e-6 || k1 < -1e-6 || k2 < -1e-6)
                continue;
            const double cover = clipAt(x, y);
            if (cover <= 0.004)
                continue;
            const auto blend = [&](float a, float b, float d) {
                return k0 * static_cast<double>(a) + k1 * static_cast<double>(b) +
                       k2 * static_cast<double>(d);
            };
            wash_(x, y).cover({blend(colours[0].r, colours[1].r, colours[2].r),
                               blend(colours[0].g, colours[1].g, colours[2].g),
                               blend(colours[0].b, colours[1].b, colours[2].b)},
                              static_cast<float>(cover));
        }
}

void Plate::wash(const Patch& patch, const std::function<Colour(std::size_t, std::size_t)>& colourAt) {
    std::vector<Colour> colours;
    colours.reserve(patch.points.size());
    for (std::size_t i = 0; i < patch.rows; ++i)
        for (std::size_t j = 0; j < patch.columns; ++j)
            colours.push_back(colourAt(i, j));
    for (std::size_t i = 0; i + 1 < patch.rows; ++i)
        for (std::size_t j = 0; j + 1 < patch.columns; ++j) {
            const std::size_t a = i * patch.columns + j, b = a + 1, d = a + patch.columns, e = d + 1;
            const Point pa = patch.points[a] * scale, pb = patch.points[b] * scale,
                        pd = patch.points[d] * scale, pe = patch.points[e] * scale;
            triangle({pa, pb, pe}, {colours[a], colours[b], colours[e]});
            triangle({pa, pe, pd}, {colours[a], colours[e], colours[d]});
        }
}

void Plate::wash(const Patch& patch, const Palette& palette, double strength, double lift, double highlight) {
    wash(patch, [&](std::size_t i, std::size_t j) {
        return ramp(palette, patch.tone(i, j) * strength + lift, highlight);
    });
}

void Plate::ink(const Path& outline, Colour colour, double alpha) {
    fill(outline, [this, colour, alpha](int x, int y, float cover) {
        const float a = static_cast<float>(alpha) * cover;
        if (under_)
            ink_(x, y).underlay(colour, a * (1 - wash_(x, y).a));
        else
            ink_(x, y).cover(colour, a);
    });
}

void Plate::ribbon(const Path& path, const std::vector<double>& halfWidths, Colour colour, double alpha) {
    const Path n = normals(path);
    Path outline;
    outline.reserve(path.size() * 2);
    for (std::size_t i = 0; i < path.size(); ++i)
        outline.push_back(path[i] + n[i] * halfWidths[i]);
    for (std::size_t i = path.size(); i-- > 0;)
        outline.push_back(path[i] - n[i] * halfWidths[i]);
    ink(outline, colour, alpha);
}

void Plate::stroke(const Path& path, const Pen& pen) {
    stroke(path, {}, pen);
}

void Plate::stroke(const Path& given, const std::vector<double>& widths, const Pen& pen) {
    if (given.size() < 2)
        return;
    Path path = given;
    std::vector<double> half(path.size(), pen.width / 2);
    if (widths.size() == path.size())
        for (std::size_t i = 0; i < half.size(); ++i)
            half[i] = widths[i] / 2;
    if (path.size() < 6) {
        std::vector<double> more;
        for (std::size_t i = 0; i < 8; ++i) {
            const double x = fraction(i, 8) * static_cast<double>(half.size() - 1);
            const auto k = std::min(static_cast<std::size_t>(x), half.size() - 2);
            more.push_back(maths::lerp(half[k], half[k + 1], x - static_cast<double>(k)));
        }
        half = std::move(more);
        path = resample(path, 8);
    }
    const std::vector<double> s = arcLengths(path);
    if (s.back() < 1e-6)
        return;
    constexpr double finest = 0.08;
    for (std::size_t i = 0; i < path.size(); ++i) {
        const double t = s[i] / s.back();
        if (pen.swell > 0)
            half[i] *= 0.22 + 0.78 * smooth(0, pen.swell, t);
        if (pen.fade > 0)
            half[i] *= 0.22 + 0.78 * smooth(0, pen.fade, 1 - t);
        half[i] = std::max(half[i], finest);
    }
    if (pen.wobble > 0) {
        const Path n = normals(path);
        const double a = random.uniform(0, 6.28), b = random.uniform(0, 6.28), c = random.uniform(0, 6.28);
        for (std::size_t i = 0; i < path.size(); ++i)
            path[i] = path[i] + n[i] * (pen.wobble * (0.5 * maths::sin(s[i] * 0.21 + a) +
                                                      0.3 * maths::sin(s[i] * 0.53 + b) +
                                                      0.2 * maths::sin(s[i] * 1.1 + c)));
    }
    ribbon(path, half, pen.colour, pen.alpha);
}

void Plate::contour(const Path& outline, const Contour& how) {
    if (outline.size() < 2)
        return;
    Path ring = outline;
    if (how.closed)
        ring.push_back(outline[0]);
    const auto count = static_cast<std::size_t>(std::max(12.0, std::min(arcLength(ring) / 1.2, 4000.0)));
    ring = resample(ring, count);
    const Path n = normals(ring);
    const double side = how.closed && signedArea(ring) > 0 ? -1 : 1;
    std::vector<double> facing(count);
    for (std::size_t i = 0; i < count; ++i)
        facing[i] = side * engraver::dot(n[i], shadeSide);
    std::vector<double> widths(count);
    for (std::size_t i = 0; i < count; ++i) {
        double sum = 0;
        for (std::size_t k = 0; k < 9; ++k) {
            std::size_t at = i + k;
            if (how.closed)
                at = (at + count - 4) % count;
            else
                at = std::min(at < 4 ? 0 : at - 4, count - 1);
            sum += facing[at];
        }
        widths[i] = how.width * (how.lit + (1 - how.lit) * smooth(-0.6, 0.9, sum / 9));
    }
    Pen pen;
    pen.swell = pen.fade = how.closed ? 0 : 0.1;
    pen.wobble = how.wobble;
    pen.alpha = how.alpha;
    stroke(ring, widths, pen);
}

void Plate::dot(Point centre, double radius, Colour colour, double alpha) {
    ink(ellipse(centre, radius, radius * 0.94, 14), colour, alpha);
}

void Plate::highlight(const Path& outline) {
    fill(outline, [this](int x, int y, float cover) {
        ink_(x, y).erase(cover);
        wash_(x, y).cover(white, cover);
    });
}

void Plate::hatch(const Patch& patch, const Hatch& how) {
    const std::size_t m = patch.rows, n = patch.columns;
    if (m < 2 || n < 2)
        return;
    // Distances across the lines, down every column.
    std::vector<double> down(m * n, 0.0);
    for (std::size_t i = 1; i < m; ++i)
        for (std::size_t j = 0; j < n; ++j)
            down[i * n + j] = down[(i - 1) * n + j] + length(patch.point(i, j) - patch.point(i - 1, j));
    std::size_t widest = 0;
    for (std::size_t j = 1; j < n; ++j)
        if (down[(m - 1) * n + j] > down[(m - 1) * n + widest])
            widest = j;
    const double reach = down[(m - 1) * n + widest];
    if (reach < how.spacing * 0.8)
        return;
    const int levels =
        std::max(0, static_cast<int>(std::ceil(maths::log2(std::max(reach / how.spacing / 3, 1.0)))));
    const int coarse = std::max(1, static_cast<int>(std::floor(reach / how.spacing / (1 << levels) + 0.5)));
    const auto lines = static_cast<std::size_t>(coarse) << levels;
    std::vector<double> place(lines);
    std::size_t q = 0;
    for (std::size_t a = 0; a < lines; ++a) {
        const double s = (static_cast<double>(a) + 0.5) / static_cast<double>(lines) * reach;
        while (q + 2 < m && down[(q + 1) * n + widest] < s)
            ++q;
        const double step = down[(q + 1) * n + widest] - down[q * n + widest];
        place[a] = static_cast<double>(q) + maths::clamp01((s - down[q * n + widest]) / std::max(step, 1e-9));
    }
    Path line(n);
    std::vector<double> widths(n), eased(n);
    for (std::size_t a = 0; a < lines; ++a) {
        const double gap = lines > 1 ? (place[std::min(a + 1, lines - 1)] - place[a > 0 ? a - 1 : 0]) /
                                           (a == 0 || a + 1 == lines ? 1.0 : 2.0)
                                     : static_cast<double>(m);
        const double x =
            std::clamp(place[a] + random.around(how.jitter) * gap, 0.0, static_cast<double>(m) - 1.001);
        const auto i = static_cast<std::size_t>(x);
        const double f = x - static_cast<double>(i);
        int level = 0;
        for (std::size_t z = a; level < levels && z % 2 == 1; z /= 2)
            ++level;
        if (a == 0)
            level = levels;
        for (std::size_t j = 0; j < n; ++j) {
            line[j] = lerp(patch.point(i, j), patch.point(i + 1, j), f);
            const double t = maths::lerp(patch.tone(i, j), patch.tone(i + 1, j), f);
            const double spacing = (down[(i + 1) * n + j] - down[i * n + j]) * gap;
            int needed = 0;
            while (needed < 12 && spacing * (1 << needed) < how.spacing * 0.62)
                ++needed;
            if (level < needed) {
                widths[j] = 0;
                continue;
            }
            const double room = std::min(spacing * (1 << needed), how.spacing * 1.5);
            widths[j] =
                std::min(how.widest, maths::pow(maths::clamp01((t - how.from) / (1 - how.from)), how.gamma) *
                                         how.coverage * room);
        }
        for (std::size_t j = 0; j < n; ++j)
            eased[j] =
                0.25 * widths[j > 0 ? j - 1 : 0] + 0.5 * widths[j] + 0.25 * widths[std::min(j + 1, n - 1)];
        if (how.wobble > 0) {
            const Path side = normals(line);
            const std::vector<double> s = arcLengths(line);
            const double phase = random.uniform(0, 6.28);
            for (std::size_t j = 0; j < n; ++j)
                line[j] = line[j] + side[j] * (how.wobble * maths::sin(s[j] * 0.25 + phase));
        }
        constexpr double finest = 0.15;
        for (std::size_t j = 0; j < n;) {
            if (eased[j] <= finest) {
                ++j;
                continue;
            }
            std::size_t end = j;
            while (end + 1 < n && eased[end + 1] > finest)
                ++end;
            if (end > j) {
                Path piece(line.begin() + static_cast<std::ptrdiff_t>(j),
                           line.begin() + static_cast<std::ptrdiff_t>(end) + 1);
                std::vector<double> half;
                for (std::size_t k = j; k <= end; ++k)
                    half.push_back(eased[k] / 2);
                ribbon(piece, half, how.colour, 1);
            }
            j = end + 1;
        }
    }
}

void Plate::layWash(const Window& w, const Grid<Colour>& colours, const Field& alpha) {
    for (int y = 0; y < w.height; ++y)
        for (int x = 0; x < w.width; ++x) {
            const double cover = clips_.empty() ? 1.0 : clipAt(x + w.x, y + w.y);
            const float a = alpha(x, y) * static_cast<float>(cover);
            if (a > 0.004F)
                wash_(x + w.x, y + w.y).cover(colours(x, y), std::min(a, 1.0F));
        }
}

void Plate::layInk(const Window& w, const Field& alpha, Colour colour) {
    for (int y = 0; y < w.height; ++y)
        for (int x = 0; x < w.width; ++x) {
            if (alpha(x, y) <= 0.004F)
                continue;
            const float a = std::min(1.0F, alpha(x, y)) * static_cast<float>(clipAt(x + w.x, y + w.y));
            if (a <= 0.004F)
                continue;
            if (under_)
                ink_(x + w.x, y + w.y).underlay(colour, a * (1 - wash_(x + w.x, y + w.y).a));
            else
                ink_(x + w.x, y + w.y).cover(colour, a);
        }
}

void Plate::clearInk(const Window& w, const Field& alpha) {
    for (int y = 0; y < w.height; ++y)
        for (int x = 0; x < w.width; ++x)
            if (alpha(x, y) > 0.004F)
                ink_(x + w.x, y + w.y)
                    .erase(std::min(1.0F, alpha(x, y)) * static_cast<float>(clipAt(x + w.x, y + w.y)));
}

void Plate::shade(const Window& w, const Field& alpha, double strength) {
    if (!shadows_)
        return;
    const auto dx = static_cast<int>(1.2 * scale), dy = static_cast<int>(1.7 * scale);
    for (int y = 0; y < w.height; ++y)
        for (int x = 0; x < w.width; ++x)
            if (alpha(x, y) > 0.004F && wash_.holds(x + w.x + dx, y + w.y + dy))
                wash_(x + w.x + dx, y + w.y + dy)
                    .tint(shadowColour, static_cast<float>(strength) * std::min(1.0F, alpha(x, y)));
}

} // namespace tambrelle::engraver
