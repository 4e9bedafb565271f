#include "plates/engraver/Lathe.h"

#include "plates/engraver/Light.h"

namespace tambrelle::engraver {

using maths::clamp01;
using maths::pi;

namespace {

constexpr std::size_t rows = 56;
constexpr std::size_t columns = 73; // the last column closes the ring

Point flatten(Vector3 p) {
    return {p.x, p.y};
}

struct Turned {
    std::vector<Vector3> points, normals;
    const Vector3& point(std::size_t i, std::size_t j) const { return points[i * columns + j]; }
    const Vector3& normal(std::size_t i, std::size_t j) const { return normals[i * columns + j]; }
};

Turned turn(const LatheSurface& s, const LatheForm& form) {
    Turned t;
    t.points.resize(rows * columns);
    t.normals.resize(rows * columns);
    for (std::size_t i = 0; i < rows; ++i) {
        const double u = fraction(i, rows);
        for (std::size_t j = 0; j < columns; ++j) {
            const double angle = 2 * pi * fraction(j, columns);
            const double rib =
                form.ribs > 0
                    ? 1 + form.ribDepth * (maths::pow(std::fabs(maths::cos(angle * form.ribs / 2)), 0.7) - 1)
                    : 1;
            const double r = s.radius(u) * rib;
            t.points[i * columns + j] = Vector3{s.base.x, s.base.y, 0} + s.axis * (u * s.length) +
                                        s.side * (r * maths::cos(angle)) + s.front * (r * maths::sin(angle));
        }
    }
    for (std::size_t i = 0; i < rows; ++i)
        for (std::size_t j = 0; j < columns; ++j) {
            const std::size_t up = std::min(i + 1, rows - 1), down = i > 0 ? i - 1 : 0;
            const std::size_t next = j + 1 < columns ? j + 1 : 1, last = j > 0 ? j - 1 : columns - 2;
            Vector3 n = cross(t.point(up, j) - t.point(down, j), t.point(i, next) - t.point(i, last));
            const Vector3 out = s.side * maths::cos(2 * pi * fraction(j, columns)) +
                                s.front * maths::sin(2 * pi * fraction(j, columns));
            if (length(n) < 1e-9) // a pole
                n = i > rows / 2 ? s.axis : s.axis * -1;
            else if (dot(n, out) < 0)
                n = n * -1;
            t.normals[i * columns + j] = unit(n);
        }
    return t;
}

// The envelope of all rings, as the greatest and least reach to the sides at stations along the axis.
Path envelope(const LatheSurface& s, const LatheForm& form) {
    const Point ax = unit(flatten(s.axis)), sd = flatten(s.side);
    constexpr std::size_t stations = 110;
    double first = 1e9, last = -1e9;
    std::vector<Point> cloud;
    constexpr std::size_t fine = 220, around = 180;
    cloud.reserve(fine * around);
    for (std::size_t i = 0; i < fine; ++i) {
        const double u = fraction(i, fine);
        const double r0 = s.radius(u);
        const double along = length(flatten(s.axis)) * u * s.length;
        for (std::size_t j = 0; j < around; ++j) {
            const double angle = 2 * pi * static_cast<double>(j) / around;
            const double rib =
                form.ribs > 0
                    ? 1 + form.ribDepth * (maths::pow(std::fabs(maths::cos(angle * form.ribs / 2)), 0.7) - 1)
                    : 1;
            const Vector3 d =
                s.side * (r0 * rib * maths::cos(angle)) + s.front * (r0 * rib * maths::sin(angle));
            const Point p{along + dot(flatten(d), ax), dot(flatten(d), sd)};
            cloud.push_back(p);
            first = std::min(first, p.x);
            last = std::max(last, p.x);
        }
    }
    std::vector<double> low(stations, 1e9), high(stations, -1e9);
    const double span = std::max(last - first, 1e-6);
    // Stations crowd towards both ends, where an end seen aslant curves fastest.
    const auto place = [](double k) { return (1 - maths::cos(pi * k / stations)) / 2; };
    for (const Point p : cloud) {
        const double x = clamp01((p.x - first) / span);
        const double k0 = 2 * maths::atan2(std::sqrt(x), std::sqrt(1 - x)) / pi * stations;
        const auto k = std::min(static_cast<std::size_t>(k0), stations - 1);
        low[k] = std::min(low[k], p.y);
        high[k] = std::max(high[k], p.y);
    }
    Path left, right;
    for (std::size_t k = 0; k < stations; ++k) {
        if (low[k] > high[k])
            continue;
        const double x = first + span * (k == 0              ? 0.0
                                         : k + 1 == stations ? 1.0
                                                             : place(static_cast<double>(k) + 0.5));
        left.push_back(s.base + ax * x + sd * low[k]);
        right.push_back(s.base + ax * x + sd * high[k]);
    }
    const auto ease = [](Path& p) {
        const Path q = p;
        for (std::size_t i = 1; i + 1 < p.size(); ++i)
            p[i] = (q[i - 1] + q[i] * 2 + q[i + 1]) * 0.25;
    };
    for (int k = 0; k < 2; ++k) {
        ease(left);
        ease(right);
    }
    return band(left, right);
}

} // namespace

Point LatheSurface::at(double u, double angleDegrees, double lift) const {
    const double a = maths::radians(angleDegrees);
    const double r = radius(u) + lift;
    return flatten(Vector3{base.x, base.y, 0} + axis * (u * length) + side * (r * maths::cos(a)) +
                   front * (r * maths::sin(a)));
}

Vector3 LatheSurface::normalAt(double u, double angleDegrees) const {
    const double a = maths::radians(angleDegrees);
    const double slope = (radius(u + 0.01) - radius(u - 0.01)) / (0.02 * length);
    return unit(side * maths::cos(a) + front * maths::sin(a) - axis * slope);
}

double LatheSurface::facing(double u, double angleDegrees) const {
    return normalAt(u, angleDegrees).z;
}
double LatheSurface::toneAt(double u, double angleDegrees) const {
    return toneOf(normalAt(u, angleDegrees));
}

Path LatheSurface::ring(double u, double from, double to, double lift) const {
    Path out;
    constexpr std::size_t n = 60;
    for (std::size_t k = 0; k < n; ++k)
        out.push_back(at(u, maths::lerp(from, to, fraction(k, n)), lift));
    return out;
}

LatheSurface lathe(Plate& plate, Point base, double length, const Profile& radius, const LatheForm& form) {
    const Point ax = direction(form.direction);
    const double flat = std::sqrt(1 - form.tilt * form.tilt);
    LatheSurface s;
    s.base = base;
    s.length = length;
    s.radius = radius;
    s.axis = {ax.x * flat, ax.y * flat, form.tilt};
    s.side = {-ax.y, ax.x, 0};
    s.front = cross(s.axis, s.side);
    if (s.front.z < 0)
        s.front = s.front * -1;
    s.outline = envelope(s, form);
    const Turned t = turn(s, form);
    plate.knockOut(s.outline, {.halo = form.halo, .shade = form.shade});
    {
        const Plate::Clip clip(plate, s.outline);
        plate.flat(s.outline, form.palette, 0.6);
        // Begin the net at the back, so that the seen part is one piece in its middle.
        Patch patch(rows, columns);
        std::vector<Colour> colours(rows * columns);
        std::vector<bool> seen(rows * columns);
        const std::size_t back = columns / 4 * 3; // -front
        for (std::size_t i = 0; i < rows; ++i)
            for (std::size_t j = 0; j < columns; ++j) {
                const std::size_t from = (j + back) % (columns - 1);
                const double angle = 2 * pi * fraction(from, columns), u = fraction(i, rows);
                const Vector3 n = t.normal(i, from);
                patch.point(i, j) = flatten(t.point(i, from));
                double tone = clamp01(toneOf(n) + form.tone);
                if (form.texture)
                    tone = clamp01(form.texture(u, angle, tone));
                patch.tone(i, j) = tone;
                Colour c = ramp(form.palette, tone * 0.80, form.highlight);
                if (form.tint)
                    c = form.tint(u, angle, tone, c);
                colours[i * columns + j] = c;
                seen[i * columns + j] = n.z > -0.06;
            }
        // Only what is seen is washed; nearer rows later.
        for (std::size_t step = 0; step + 1 < rows; ++step) {
            const std::size_t i = form.tilt >= 0 ? step : rows - 2 - step;
            std::size_t j = 0;
            while (j + 1 < columns) {
                if (!seen[i * columns + j] && !seen[(i + 1) * columns + j + 1]) {
                    ++j;
                    continue;
                }
                std::size_t end = j + 1;
                while (end + 1 < columns && (seen[i * columns + end] || seen[(i + 1) * columns + end + 1]))
                    ++end;
                Patch strip(2, end - j + 1);
                for (std::size_t q = j; q <= end; ++q) {
                    strip.point(0, q - j) = patch.point(i, q);
                    strip.point(1, q - j) = patch.point(i + 1, q);
                }
                plate.wash(strip,
                           [&](std::size_t a, std::size_t b) { return colours[(i + a) * columns + j + b]; });
                j = end;
            }
        }
        for (std::size_t k = 0; k < patch.tones.size(); ++k)
            if (!seen[k])
                patch.tones[k] = 0;
        const Hatch hatch{.spacing = form.spacing, .coverage = form.coverage, .from = form.hatchFrom};
        // Meridians: only columns that are seen anywhere, so that their spacing is measured where it shows.
        const auto meridians = [&]() {
            std::vector<std::size_t> kept;
            for (std::size_t j = 0; j < columns; ++j)
                for (std::size_t i = 0; i < rows; ++i)
                    if (seen[i * columns + j]) {
                        kept.push_back(j);
                        break;
                    }
            Patch m(std::max<std::size_t>(kept.size(), 2), rows);
            for (std::size_t a = 0; a < kept.size(); ++a)
                for (std::size_t i = 0; i < rows; ++i) {
                    m.point(a, i) = patch.point(i, kept[a]);
                    m.tone(a, i) = patch.tone(i, kept[a]);
                }
            return m;
        };
        Hatch second = hatch;
        second.from = 0.55;
        second.coverage *= 0.9;
        if (form.lines == Lines::across || (form.crossed && form.lines == Lines::along))
            plate.hatch(patch, form.lines == Lines::across ? hatch : second);
        if (form.lines == Lines::along || (form.crossed && form.lines == Lines::across))
            plate.hatch(meridians(), form.lines == Lines::along ? hatch : second);
    }
    if (form.contour > 0)
        plate.contour(s.outline, form.contour);
    return s;
}

Path ball(Plate& plate, Point centre, double radius, const BallForm& form) {
    const double turn = maths::radians(form.direction + 90);
    const double c = maths::cos(turn), s = maths::sin(turn);
    const auto m = static_cast<std::size_t>(std::clamp(radius * 2.2, 9.0, 30.0));
    Patch patch(m, m);
    for (std::size_t i = 0; i < m; ++i)
        for (std::size_t j = 0; j < m; ++j) {
            const double latitude = pi * (fraction(i, m) - 0.5), longitude = pi * (fraction(j, m) - 0.5);
            const double x = maths::cos(latitude) * maths::sin(longitude), y = maths::sin(latitude);
            const double z = maths::cos(latitude) * maths::cos(longitude), stretched = y * form.squash;
            patch.point(i, j) = {centre.x + radius * (x * c - stretched * s),
                                 centre.y + radius * (x * s + stretched * c)};
            patch.tone(i, j) = clamp01(toneOf({x * c - y * s, x * s + y * c, z}) + form.tone);
        }
    Path outline;
    const auto corners = static_cast<std::size_t>(std::clamp(radius * 6, 16.0, 60.0));
    for (std::size_t k = 0; k < corners; ++k) {
        const double a = 2 * pi * static_cast<double>(k) / static_cast<double>(corners);
        const double x = radius * maths::cos(a), y = radius * maths::sin(a) * form.squash;
        outline.push_back({centre.x + x * c - y * s, centre.y + x * s + y * c});
    }
    plate.knockOut(outline, {.halo = form.halo, .shade = form.shade});
    {
        const Plate::Clip clip(plate, outline);
        plate.flat(outline, form.palette, 0.5);
        plate.wash(patch, form.palette, 0.85, 0, form.highlight);
        if (form.lines != Lines::none)
            plate.hatch(form.lines == Lines::along ? patch.transposed() : patch,
                        {.spacing = form.spacing, .coverage = form.coverage, .from = 0.28});
    }
    if (form.contour > 0)
        plate.contour(outline, {.width = form.contour, .lit = 0.5});
    return outline;
}

} // namespace tambrelle::engraver
