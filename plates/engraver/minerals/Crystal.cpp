#include "plates/engraver/minerals/Crystal.h"

#include "plates/engraver/Face.h"
#include "plates/engraver/Light.h"

namespace tambrelle::engraver {

namespace {

Vector3 turned(Vector3 p, Vector3 degrees) {
    const auto turn = [](double& a, double& b, double angle) {
        const Point d = direction(angle);
        const double a1 = a * d.x - b * d.y, b1 = a * d.y + b * d.x;
        a = a1;
        b = b1;
    };
    turn(p.y, p.z, degrees.x);
    turn(p.z, p.x, degrees.y);
    turn(p.x, p.y, degrees.z);
    return p;
}

struct Facet {
    Vector3 normal;
    Path outline;
};

// Corners are few, so every plane through three of them is tried: a face has all others behind it.
std::vector<Facet> facetsOf(const std::vector<Vector3>& v) {
    constexpr double near = 1e-6;
    std::vector<Facet> facets;
    std::vector<Vector3> seen;
    for (std::size_t i = 0; i < v.size(); ++i)
        for (std::size_t j = i + 1; j < v.size(); ++j)
            for (std::size_t k = j + 1; k < v.size(); ++k) {
                Vector3 n = cross(v[j] - v[i], v[k] - v[i]);
                if (length(n) < near)
                    continue;
                n = unit(n);
                bool front = true, back = true;
                for (const Vector3& p : v) {
                    front = front && dot(n, p - v[i]) < near;
                    back = back && dot(n, p - v[i]) > -near;
                }
                if (!front && !back)
                    continue;
                if (!front)
                    n = n * -1;
                if (std::any_of(seen.begin(), seen.end(), [&](Vector3 s) { return dot(s, n) > 1 - 1e-9; }))
                    continue;
                seen.push_back(n);
                std::vector<Vector3> on;
                for (const Vector3& p : v)
                    if (std::fabs(dot(n, p - v[i])) < near)
                        on.push_back(p);
                Path flat;
                for (const Vector3& p : on)
                    flat.push_back({p.x, p.y});
                facets.push_back({n, hull(flat)});
            }
    return facets;
}

} // namespace

Point crystalPoint(Vector3 p, Point centre, const CrystalForm& form) {
    const Vector3 q = turned(p, form.turn);
    return centre + Point{q.x, q.y} * form.scale;
}

Path crystal(Plate& plate, const std::vector<Vector3>& corners, Point centre, const CrystalForm& form) {
    std::vector<Vector3> v;
    Path flat;
    for (const Vector3& c : corners) {
        v.push_back(turned(c, form.turn));
        flat.push_back(centre + Point{v.back().x, v.back().y} * form.scale);
    }
    Path outline = hull(flat);
    plate.knockOut(outline, {.shade = form.shade});
    plate.flat(outline, form.palette, 0.3);
    const auto facets = facetsOf(v);
    const auto placed = [&](Path path) {
        for (Point& p : path)
            p = centre + p * form.scale;
        return path;
    };
    for (const Facet& f : facets) {
        if (f.normal.z < 0.02 || f.outline.size() < 3)
            continue;
        const double tone =
            std::clamp((toneOf(f.normal) - 0.45) * form.contrast + 0.45 + form.tone, 0.02, 0.92);
        const Point steepest{f.normal.y + 0.2, -f.normal.x + 0.7};
        face(plate, placed(f.outline),
             {.tone = tone,
              .palette = form.palette,
              .lines = angleOf(steepest),
              .spacing = form.spacing,
              .coverage = form.coverage,
              .hatchFrom = form.hatchFrom,
              .contour = form.edges,
              .crossed = tone > 0.66,
              .gradient = 0.10,
              .gradientTo = 66,
              .halo = 0});
    }
    if (form.clear > 0)
        for (const Facet& f : facets)
            if (f.normal.z < -0.02 && f.outline.size() >= 3) {
                Path edge = placed(f.outline);
                edge.push_back(edge.front());
                plate.stroke(edge, {.width = 0.4, .alpha = form.clear});
            }
    plate.contour(outline, form.contour);
    return outline;
}

namespace crystals {

std::vector<Vector3> bipyramid(double blunt, double elongation) {
    std::vector<Vector3> v;
    for (const double end : {1.0, -1.0})
        for (const Point q : {Point{1, 0}, Point{-1, 0}, Point{0, 0.8}, Point{0, -0.8}})
            v.push_back({q.x * blunt, end * elongation * (1 - blunt), q.y * blunt});
    for (const Point q : {Point{1, 0}, Point{-1, 0}, Point{0, 0.8}, Point{0, -0.8}})
        v.push_back({q.x, 0, q.y});
    return v;
}

std::vector<Vector3> cuboid(double x, double y, double z) {
    std::vector<Vector3> v;
    for (const double a : {-x, x})
        for (const double b : {-y, y})
            for (const double c : {-z, z})
                v.push_back({a, b, c});
    return v;
}

} // namespace crystals

} // namespace tambrelle::engraver
