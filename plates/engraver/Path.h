#pragma once

#include "plates/engraver/Vector.h"

#include <cstddef>
#include <vector>

namespace tambrelle::engraver {

/// A polyline or, where a function says so, the control points of a spline.
using Path = std::vector<Point>;

/// Centripetal Catmull-Rom curve through the points, `steps` pieces a span; closed curves do not repeat the
/// first point.
Path spline(const Path& points, std::size_t steps = 14);
Path closedSpline(const Path& points, std::size_t steps = 14);

/// Length from the first point to each point, in units.
std::vector<double> arcLengths(const Path& path);
double arcLength(const Path& path);
/// `count` points at even distances along the path, both ends kept.
Path resample(const Path& path, std::size_t count);
/// The point at the fraction t in 0...1 of the path's length.
Point along(const Path& path, double t);
/// The path's direction at the fraction t, in degrees.
double angleAlong(const Path& path, double t);
/// Unit tangents and unit normals (to the right of the way) at every point.
Path tangents(const Path& path);
Path normals(const Path& path);

Path moved(Path path, Point by);
Path turned(Path path, double degrees, Point centre);
Path reversed(Path path);
/// `first` followed by `second`.
Path joined(Path first, const Path& second);
/// There along one side and back along the other: the closed outline of a band.
Path band(Path there, const Path& back);
/// An elliptical arc from `from` to `to` degrees; the whole ellipse by default, `count` points.
Path ellipse(Point centre, double radiusX, double radiusY, std::size_t count = 60);
Path arc(Point centre, double radiusX, double radiusY, double from, double to, std::size_t count = 40);
Point centroid(const Path& path);
double signedArea(const Path& path);
bool contains(const Path& outline, Point p);
/// Convex hull, counter-clockwise on the screen.
Path hull(Path points);

struct Bounds {
    double left = 1e9;
    double top = 1e9;
    double right = -1e9;
    double bottom = -1e9;
    void add(Point p) {
        left = std::min(left, p.x);
        top = std::min(top, p.y);
        right = std::max(right, p.x);
        bottom = std::max(bottom, p.y);
    }
};
Bounds boundsOf(const Path& path);

} // namespace tambrelle::engraver
