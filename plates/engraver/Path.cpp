#include "plates/engraver/Path.h"

namespace tambrelle::engraver {

namespace {

Path catmullRom(const Path& q, std::size_t steps, bool closed) {
    Path out;
    for (std::size_t i = 1; i + 2 < q.size(); ++i) {
        const Point p0 = q[i - 1], p1 = q[i], p2 = q[i + 1], p3 = q[i + 2];
        const double d1 = std::sqrt(std::max(length(p1 - p0), 1e-6));
        const double d2 = std::sqrt(std::max(length(p2 - p1), 1e-6));
        const double d3 = std::sqrt(std::max(length(p3 - p2), 1e-6));
        const Point m1 = ((p1 - p0) * (1 / d1) - (p2 - p0) * (1 / (d1 + d2)) + (p2 - p1) * (1 / d2)) * d2;
        const Point m2 = ((p2 - p1) * (1 / d2) - (p3 - p1) * (1 / (d2 + d3)) + (p3 - p2) * (1 / d3)) * d2;
        for (std::size_t k = 0; k < steps; ++k) {
            const double t = static_cast<double>(k) / static_cast<double>(steps);
            const double t2 = t * t, t3 = t2 * t;
            out.push_back(p1 * (2 * t3 - 3 * t2 + 1) + m1 * (t3 - 2 * t2 + t) + p2 * (3 * t2 - 2 * t3) +
                          m2 * (t3 - t2));
        }
    }
    if (!closed)
        out.push_back(q[q.size() - 2]);
    return out;
}

} // namespace

Path spline(const Path& points, std::size_t steps) {
    if (points.size() < 2)
        return points;
    if (points.size() == 2) {
        Path out;
        for (std::size_t k = 0; k < steps; ++k)
            out.push_back(
                lerp(points[0], points[1], static_cast<double>(k) / static_cast<double>(steps - 1)));
        return out;
    }
    Path q{points[0] * 2 - points[1]};
    q.insert(q.end(), points.begin(), points.end());
    q.push_back(points.back() * 2 - points[points.size() - 2]);
    return catmullRom(q, steps, false);
}

Path closedSpline(const Path& points, std::size_t steps) {
    if (points.size() < 3)
        return points;
    Path q{points.back()};
    q.insert(q.end(), points.begin(), points.end());
    q.push_back(points[0]);
    q.push_back(points[1]);
    return catmullRom(q, steps, true);
}

std::vector<double> arcLengths(const Path& path) {
    std::vector<double> d(path.size(), 0.0);
    for (std::size_t i = 1; i < path.size(); ++i)
        d[i] = d[i - 1] + length(path[i] - path[i - 1]);
    return d;
}

double arcLength(const Path& path) {
    double sum = 0;
    for (std::size_t i = 1; i < path.size(); ++i)
        sum += length(path[i] - path[i - 1]);
    return sum;
}

Path resample(const Path& path, std::size_t count) {
    if (path.size() < 2 || count < 2)
        return path;
    const std::vector<double> d = arcLengths(path);
    Path out;
    out.reserve(count);
    std::size_t j = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const double s = d.back() * static_cast<double>(i) / static_cast<double>(count - 1);
        while (j + 2 < d.size() && d[j + 1] < s)
            ++j;
        const double w = d[j + 1] - d[j];
        out.push_back(lerp(path[j], path[j + 1], w > 1e-12 ? maths::clamp01((s - d[j]) / w) : 0));
    }
    return out;
}

Point along(const Path& path, double t) {
    if (path.size() < 2)
        return path.empty() ? Point{} : path[0];
    const std::vector<double> d = arcLengths(path);
    const double s = maths::clamp01(t) * d.back();
    std::size_t j = 0;
    while (j + 2 < d.size() && d[j + 1] < s)
        ++j;
    const double w = d[j + 1] - d[j];
    return lerp(path[j], path[j + 1], w > 1e-12 ? maths::clamp01((s - d[j]) / w) : 0);
}

double angleAlong(const Path& path, double t) {
    return angleOf(along(path, std::min(1.0, t + 0.02)) - along(path, std::max(0.0, t - 0.02)));
}

Path tangents(const Path& path) {
    const std::size_t n = path.size();
    Path out(n);
    for (std::size_t i = 0; i < n; ++i)
        out[i] = unit(path[i + 1 < n ? i + 1 : i] - path[i > 0 ? i - 1 : 0]);
    return out;
}

Path normals(const Path& path) {
    Path out = tangents(path);
    for (Point& p : out)
        p = rightOf(p);
    return out;
}

Path moved(Path path, Point by) {
    for (Point& p : path)
        p = p + by;
    return path;
}

Path turned(Path path, double degrees, Point centre) {
    for (Point& p : path)
        p = rotate(p, degrees, centre);
    return path;
}

Path reversed(Path path) {
    std::reverse(path.begin(), path.end());
    return path;
}

Path joined(Path first, const Path& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

Path band(Path there, const Path& back) {
    there.insert(there.end(), back.rbegin(), back.rend());
    return there;
}

Path ellipse(Point centre, double radiusX, double radiusY, std::size_t count) {
    Path out;
    for (std::size_t k = 0; k < count; ++k) {
        const double a = 2 * maths::pi * static_cast<double>(k) / static_cast<double>(count);
        out.push_back({centre.x + radiusX * maths::cos(a), centre.y + radiusY * maths::sin(a)});
    }
    return out;
}

Path arc(Point centre, double radiusX, double radiusY, double from, double to, std::size_t count) {
    Path out;
    for (std::size_t k = 0; k < count; ++k) {
        const Point d =
            direction(maths::lerp(from, to, static_cast<double>(k) / static_cast<double>(count - 1)));
        out.push_back({centre.x + radiusX * d.x, centre.y + radiusY * d.y});
    }
    return out;
}

Point centroid(const Path& path) {
    Point sum;
    for (const Point p : path)
        sum = sum + p;
    return sum * (1.0 / static_cast<double>(std::max<std::size_t>(1, path.size())));
}

double signedArea(const Path& path) {
    double sum = 0;
    for (std::size_t i = 0; i < path.size(); ++i)
        sum += cross(path[i], path[i + 1 < path.size() ? i + 1 : 0]);
    return sum / 2;
}

bool contains(const Path& outline, Point p) {
    bool inside = false;
    for (std::size_t i = 0, j = outline.size() - 1; i < outline.size(); j = i++) {
        const Point a = outline[i], b = outline[j];
        if ((a.y > p.y) != (b.y > p.y) && p.x < (b.x - a.x) * (p.y - a.y) / (b.y - a.y) + a.x)
            inside = !inside;
    }
    return inside;
}

Path hull(Path points) {
    if (points.size() < 3)
        return points;
    std::sort(points.begin(), points.end(),
              [](Point a, Point b) { return a.x < b.x || (a.x == b.x && a.y < b.y); });
    Path out;
    const auto extend = [&out](Point p, std::size_t floor) {
        while (out.size() >= floor + 2 &&
               cross(out.back() - out[out.size() - 2], p - out[out.size() - 2]) <= 0)
            out.pop_back();
        out.push_back(p);
    };
    for (const Point p : points)
        extend(p, 0);
    const std::size_t lower = out.size() - 1;
    for (std::size_t i = points.size() - 1; i-- > 0;)
        extend(points[i], lower);
    out.pop_back();
    return out;
}

Bounds boundsOf(const Path& path) {
    Bounds b;
    for (const Point p : path)
        b.add(p);
    return b;
}

} // namespace tambrelle::engraver
