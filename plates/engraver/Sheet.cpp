#include "plates/engraver/Sheet.h"

#include "plates/engraver/Light.h"
#include "plates/engraver/PlaneCuts.h"

namespace tambrelle::engraver {

using maths::clamp01;
using maths::pi;
using maths::smooth;

Frame::Frame(Point centre, double tilt, double degrees, double roll) : centre_(centre) {
    const Point d = direction(degrees), t = direction(tilt), r = direction(roll);
    z_ = {d.x * t.x, d.y * t.x, t.y};
    const Vector3 e{-d.y, d.x, 0};
    const Vector3 f = cross(z_, e);
    x_ = e * r.x + f * r.y;
    y_ = f * r.x - e * r.y;
}

void Sheets::add(std::size_t rows, std::size_t columns, const std::function<Vector3(double, double)>& at,
                 const std::function<double(double, double)>& line,
                 const std::function<double(double, double)>& tone, int palette) {
    Sheet s;
    s.rows = rows;
    s.columns = columns;
    s.palette = palette;
    s.vertices.resize(rows * columns);
    for (std::size_t i = 0; i < rows; ++i)
        for (std::size_t j = 0; j < columns; ++j) {
            const double u = fraction(i, rows), v = fraction(j, columns);
            s.vertices[i * columns + j] = {at(u, v), {}, line(u, v), tone(u, v), u};
        }
    const auto point = [&s](std::size_t i, std::size_t j) { return s.vertices[i * s.columns + j].at; };
    for (std::size_t i = 0; i < rows; ++i)
        for (std::size_t j = 0; j < columns; ++j) {
            const Vector3 du = point(std::min(i + 1, rows - 1), j) - point(i > 0 ? i - 1 : 0, j);
            const Vector3 dv = point(i, std::min(j + 1, columns - 1)) - point(i, j > 0 ? j - 1 : 0);
            s.vertices[i * columns + j].normal = unit(cross(du, dv));
        }
    sheets_.push_back(std::move(s));
}

void Sheets::petal(const Frame& frame, double azimuth, const Petal& p, Random& random) {
    // The midline first: out from the axis and along it.
    constexpr std::size_t n = 120;
    std::vector<double> lean(n), out(n), up(n);
    double rho = p.radius, zeta = p.offset;
    for (std::size_t k = 0; k < n; ++k) {
        const double s = fraction(k, n);
        lean[k] = maths::radians(p.baseAngle + (p.tipAngle - p.baseAngle) * maths::pow(s, p.bending) +
                                 p.curl * smooth(0.72, 1, s));
        rho += maths::sin(lean[k]) * p.length / n;
        zeta += maths::cos(lean[k]) * p.length / n;
        out[k] = rho;
        up[k] = zeta;
    }
    const auto sample = [](const std::vector<double>& f, double u) {
        const double x = clamp01(u) * (n - 1);
        const auto i = std::min(static_cast<std::size_t>(x), n - 2);
        return maths::lerp(f[i], f[i + 1], x - static_cast<double>(i));
    };
    const double widestAt = p.shape.greatestAt(), widest = p.shape.greatest();
    const double phase = p.ruffle != 0 ? random.uniform(0, 6.28) : 0;
    const double ca = maths::cos(maths::radians(azimuth)), sa = maths::sin(maths::radians(azimuth));
    const double round = p.cup > 0 ? p.cup * p.width : 1e6;
    const auto at = [&](double uu, double v01) {
        const double u0 = maths::pow(uu, 0.9), v = v01 * 2 - 1;
        const double cut = v / 0.2;
        const double rim =
            1 - (1 - widestAt) * maths::pow(std::fabs(v), 2.6) * 0.9 - p.notch * maths::exp(-cut * cut);
        const double u = u0 * rim;
        const double half = (u > widestAt ? widest : p.shape(u)) * p.width;
        const double turn = half * v / round, lateral = round * maths::sin(turn);
        double depth = round * (1 - maths::cos(turn)) + p.overlap * p.width * v * smooth(0, 0.3, u0);
        depth += p.ruffle * maths::sin(v * p.ruffleTurns + phase) * smooth(0.35, 1, u0);
        const double a = sample(lean, u);
        const double r = sample(out, u) - maths::cos(a) * depth, z = sample(up, u) + maths::sin(a) * depth;
        return frame({r * ca - lateral * sa, r * sa + lateral * ca, z});
    };
    add(
        static_cast<std::size_t>(p.rows), static_cast<std::size_t>(p.columns), at,
        [&](double, double v) { return (v * 2 - 1) * p.width * widest; },
        [&](double u, double v) { return p.tone ? p.tone(u, v * 2 - 1) : 0.34 * (1 - smooth(0, 0.55, u)); },
        p.palette);
}

void Sheets::rod(const Frame& frame, const Rod& r) {
    constexpr std::size_t n = 16;
    std::vector<double> out(n), up(n);
    double rho = 0, zeta = r.offset;
    for (std::size_t k = 0; k < n; ++k) {
        out[k] = rho;
        up[k] = zeta;
        const double a = maths::radians(r.lean + r.bend * fraction(k, n));
        rho += maths::sin(a) * r.length / (n - 1);
        zeta += maths::cos(a) * r.length / (n - 1);
    }
    const double ca = maths::cos(maths::radians(r.azimuth)), sa = maths::sin(maths::radians(r.azimuth));
    add(
        n, 11,
        [&](double u, double v) {
            const auto k = static_cast<std::size_t>(std::lround(u * (n - 1)));
            const double t = v * 2 * pi, radius = maths::lerp(r.radius, r.tipRadius, u);
            return frame({out[k] * ca + radius * maths::cos(t), out[k] * sa + radius * maths::sin(t), up[k]});
        },
        [](double, double v) { return v * 4; }, [](double, double) { return 0.0; }, r.palette);
}

void Sheets::cup(const Frame& frame, const Cup& c) {
    const auto around = static_cast<std::size_t>(c.lobes > 0 ? 20 * c.lobes + 1 : 97);
    add(
        26, around,
        [&](double u, double v) {
            const double t = v * 2 * pi;
            double r = c.radius * c.shape(u), z = u * c.length;
            if (c.lobes > 0)
                z *= 1 + c.lobeDepth * (maths::pow(std::fabs(maths::cos(t * c.lobes / 2)), 0.8) - 0.5) *
                             smooth(0.55, 1, u);
            r += c.flute * u * u * u * maths::sin(t * c.flutes);
            return frame({r * maths::cos(t), r * maths::sin(t), z + c.offset});
        },
        [&](double, double v) { return v * 2 * pi * c.radius; },
        [&](double u, double) { return c.tone * (1 - u); }, c.palette);
}

// The depth buffer and what each pixel sees.
class SheetBuffer {
public:
    SheetBuffer(const std::vector<Sheets::Sheet>& sheets, const Sheets::Style& style) : style_(style) {
        Bounds b;
        for (const auto& s : sheets)
            for (const auto& v : s.vertices)
                b.add({v.at.x, v.at.y});
        window_ = Plate::windowOf(b, 4);
        const int w = window_.width, h = window_.height;
        if (w < 4 || h < 4)
            return;
        depth_ = Field(w, h, -1e9F);
        owner_ = Grid<int>(w, h, -1);
        normal_ = Grid<Normal>(w, h);
        line_ = Field(w, h);
        density_ = Field(w, h);
        tone_ = Field(w, h);
        u_ = Field(w, h);
        int id = 0;
        for (const auto& s : sheets) {
            for (std::size_t i = 0; i + 1 < s.rows; ++i)
                for (std::size_t j = 0; j + 1 < s.columns; ++j) {
                    const std::size_t k = i * s.columns + j;
                    rasterise(s.vertices[k], s.vertices[k + 1], s.vertices[k + s.columns + 1], id);
                    rasterise(s.vertices[k], s.vertices[k + s.columns + 1], s.vertices[k + s.columns], id);
                }
            paletteOf_.push_back(s.palette);
            ++id;
        }
    }

    void engrave(Plate& plate) {
        const int w = window_.width, h = window_.height;
        if (w < 4 || h < 4)
            return;
        Field hit(w, h);
        float lowest = 1e9F;
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x)
                if (owner_(x, y) >= 0) {
                    hit(x, y) = 1;
                    lowest = std::min(lowest, depth_(x, y));
                }
        if (lowest > 1e8F)
            return;
        shadeTones(hit);
        Field soft = hit;
        blur(soft, 0.5);
        Field halo = dilated(hit, static_cast<int>(Plate::scale * 0.7));
        if (style_.shade > 0)
            plate.shade(window_, soft, style_.shade);
        plate.clearInk(window_, halo);
        Grid<Colour> colours(w, h);
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x)
                if (owner_(x, y) >= 0)
                    colours(x, y) = colourAt(x, y);
        plate.layWash(window_, colours, hit);
        plate.layInk(window_, inkOf(hit));
    }

private:
    struct Normal {
        float x = 0, y = 0, z = 1;
        bool back = false;
    };

    void rasterise(const Sheets::Vertex& a, const Sheets::Vertex& b, const Sheets::Vertex& c, int id) {
        const double s = Plate::scale;
        const double x0 = a.at.x * s - window_.x, y0 = a.at.y * s - window_.y;
        const double x1 = b.at.x * s - window_.x, y1 = b.at.y * s - window_.y;
        const double x2 = c.at.x * s - window_.x, y2 = c.at.y * s - window_.y;
        const double area = (y1 - y2) * (x0 - x2) + (x2 - x1) * (y0 - y2);
        if (std::fabs(area) < 1e-9)
            return;
        const int left = std::max(0, static_cast<int>(std::min({x0, x1, x2})));
        const int right = std::min(window_.width - 1, static_cast<int>(std::max({x0, x1, x2}) + 1));
        const int top = std::max(0, static_cast<int>(std::min({y0, y1, y2})));
        const int bottom = std::min(window_.height - 1, static_cast<int>(std::max({y0, y1, y2}) + 1));
        const double gx = (a.line * (y1 - y2) + b.line * (y2 - y0) + c.line * (y0 - y1)) / area;
        const double gy = (a.line * (x2 - x1) + b.line * (x0 - x2) + c.line * (x1 - x0)) / area;
        const auto density = static_cast<float>(std::sqrt(gx * gx + gy * gy) * s);
        for (int y = top; y <= bottom; ++y)
            for (int x = left; x <= right; ++x) {
                const double px = x + 0.5, py = y + 0.5;
                const double k0 = ((y1 - y2) * (px - x2) + (x2 - x1) * (py - y2)) / area;
                const double k1 = ((y2 - y0) * (px - x2) + (x0 - x2) * (py - y2)) / area;
                const double k2 = 1 - k0 - k1;
                if (k0 < -1e-4 || k1 < -1e-4 || k2 < -1e-4)
                    continue;
                const auto z = static_cast<float>(k0 * a.at.z + k1 * b.at.z + k2 * c.at.z);
                if (z <= depth_(x, y))
                    continue;
                depth_(x, y) = z;
                const Vector3 n = a.normal * k0 + b.normal * k1 + c.normal * k2;
                Normal& m = normal_(x, y);
                m.back = n.z < 0;
                const double flip = m.back ? -1 : 1;
                m.x = static_cast<float>(n.x * flip);
                m.y = static_cast<float>(n.y * flip);
                m.z = static_cast<float>(n.z * flip);
                owner_(x, y) = id;
                line_(x, y) = static_cast<float>(k0 * a.line + k1 * b.line + k2 * c.line);
                tone_(x, y) = static_cast<float>(k0 * a.tone + k1 * b.tone + k2 * c.tone);
                u_(x, y) = static_cast<float>(k0 * a.u + k1 * b.u + k2 * c.u);
                density_(x, y) = density;
            }
    }

    void shadeTones(const Field& hit) {
        const int w = window_.width, h = window_.height;
        float lowest = 1e9F;
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x)
                if (hit(x, y) > 0)
                    lowest = std::min(lowest, depth_(x, y));
        Field sum(w, h);
        // What lies below its surroundings is in shade, at three reaches.
        for (const auto& [sigma, strength] :
             {std::pair{2.5, 0.030}, std::pair{6.0, 0.022}, std::pair{14.0, 0.008}}) {
            Field z(w, h), share = hit;
            for (int y = 0; y < h; ++y)
                for (int x = 0; x < w; ++x)
                    z(x, y) = hit(x, y) > 0 ? depth_(x, y) - lowest : 0;
            blur(z, sigma * Plate::scale);
            blur(share, sigma * Plate::scale);
            for (int y = 0; y < h; ++y)
                for (int x = 0; x < w; ++x)
                    if (hit(x, y) > 0) {
                        const double around =
                            static_cast<double>(z(x, y)) / std::max(static_cast<double>(share(x, y)), 1e-3);
                        const double own = static_cast<double>(depth_(x, y) - lowest);
                        sum(x, y) += static_cast<float>(style_.occlusion *
                                                        std::clamp((around - own) * strength, -0.04, 0.30));
                    }
        }
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x) {
                if (hit(x, y) <= 0)
                    continue;
                const Normal& n = normal_(x, y);
                const Vector3 m = unit(
                    Vector3{static_cast<double>(n.x), static_cast<double>(n.y), static_cast<double>(n.z)});
                const double t = toneOf(m) + static_cast<double>(tone_(x, y)) + style_.ambient +
                                 static_cast<double>(sum(x, y));
                tone_(x, y) =
                    static_cast<float>(std::clamp(t, 0.0, 0.86)); // steep petals must not turn black
            }
    }

    Colour colourAt(int x, int y) const {
        const auto k = static_cast<std::size_t>(paletteOf_[static_cast<std::size_t>(owner_(x, y))]);
        const Sheets::Style::Tint& tint = style_.palettes[std::min(k, style_.palettes.size() - 1)];
        const double t = static_cast<double>(tone_(x, y)) * style_.washStrength;
        const auto lift = [this](const Palette& p) {
            return p.light.r > 0.995F && p.light.g > 0.995F ? 0.0 : style_.washLift;
        };
        const Colour base = ramp(tint.base, t + lift(tint.base), style_.highlight);
        if (!tint.tip)
            return base;
        return mix(base, ramp(*tint.tip, t + lift(*tint.tip), style_.highlight),
                   smooth(0.2, 0.9, static_cast<double>(u_(x, y))));
    }

    // Gives slivers, where sheets just pierce one another, to the sheet around them: else each would be
    // outlined.
    void dropSlivers() {
        const int w = window_.width, h = window_.height;
        constexpr int smallest = 10 * Plate::scale;
        Grid<int> label(w, h, -1);
        std::vector<std::pair<int, int>> stack, members;
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x) {
                if (owner_(x, y) < 0 || label(x, y) >= 0)
                    continue;
                members.clear();
                stack.assign(1, {x, y});
                label(x, y) = 1;
                int neighbour = -1;
                const int id = owner_(x, y);
                while (!stack.empty()) {
                    const auto [px, py] = stack.back();
                    stack.pop_back();
                    members.emplace_back(px, py);
                    for (const auto& [dx, dy] :
                         {std::pair{1, 0}, std::pair{-1, 0}, std::pair{0, 1}, std::pair{0, -1}}) {
                        const int qx = px + dx, qy = py + dy;
                        if (!label.holds(qx, qy) || owner_(qx, qy) < 0)
                            continue;
                        if (owner_(qx, qy) != id)
                            neighbour = owner_(qx, qy);
                        else if (label(qx, qy) < 0) {
                            label(qx, qy) = 1;
                            stack.emplace_back(qx, qy);
                        }
                    }
                }
                if (static_cast<int>(members.size()) < smallest && neighbour >= 0)
                    for (const auto& [px, py] : members)
                        owner_(px, py) = neighbour;
            }
    }

    Field inkOf(const Field& hit) {
        const int w = window_.width, h = window_.height;
        const int reach =
            std::max(2, static_cast<int>(std::floor(style_.contour * 0.5 * Plate::scale + 0.5)));
        Field z(w, h, -300.0F), id(w, h, -1.0F);
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x)
                if (hit(x, y) > 0) {
                    z(x, y) = depth_(x, y);
                    id(x, y) = static_cast<float>(owner_(x, y));
                }
        const Field nearest = dilated(z, reach), most = dilated(id, reach), least = eroded(id, reach);
        Field edge(w, h);
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x) {
                if (most(x, y) == least(x, y))
                    continue;
                double slope = 0;
                if (hit(x, y) > 0) {
                    const double nz = std::clamp(static_cast<double>(normal_(x, y).z), 0.12, 1.0);
                    slope = std::sqrt(1 - nz * nz) / nz * reach / Plate::scale * 1.6;
                }
                edge(x, y) = static_cast<float>(clamp01(
                    (static_cast<double>(nearest(x, y) - z(x, y)) - style_.edge - slope) / style_.edge));
            }
        blur(edge, 1.4);
        dropSlivers();
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x)
                id(x, y) = static_cast<float>(owner_(x, y));
        const Field high = dilated(id, 1);
        for (float& v : id.cells())
            if (v < 0)
                v = 1e6F;
        const Field low = eroded(id, 1);
        Field seam(w, h);
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x)
                if (hit(x, y) > 0 && high(x, y) != low(x, y))
                    seam(x, y) = 1;
        blur(seam, 1.3);
        Field ink(w, h);
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x) {
                double v = std::max(smooth(0.30, 0.72, static_cast<double>(edge(x, y))),
                                    0.9 * smooth(0.22, 0.55, static_cast<double>(seam(x, y))));
                if (hit(x, y) > 0) {
                    const double density =
                        std::clamp(static_cast<double>(density_(x, y)) / style_.spacing, 0.01, 12.0);
                    v = std::max(v, lineInk(static_cast<double>(line_(x, y)) / style_.spacing, density,
                                            static_cast<double>(tone_(x, y)), style_.spacing,
                                            style_.hatchFrom, style_.coverage, 1.1, style_.widest));
                }
                ink(x, y) = static_cast<float>(v);
            }
        return ink;
    }

    const Sheets::Style& style_;
    Plate::Window window_;
    Field depth_, line_, density_, tone_, u_;
    Grid<int> owner_;
    Grid<Normal> normal_;
    std::vector<int> paletteOf_;
};

void Sheets::engrave(Plate& plate, const Style& style) const {
    if (!sheets_.empty())
        SheetBuffer(sheets_, style).engrave(plate);
}

} // namespace tambrelle::engraver
