#pragma once

#include "plates/engraver/Maths.h"

namespace tambrelle::engraver {

/// A place or a direction on the plate, in units; x to the right, y DOWN.
struct Point {
    double x = 0;
    double y = 0;
};

inline Point operator+(Point a, Point b) {
    return {a.x + b.x, a.y + b.y};
}
inline Point operator-(Point a, Point b) {
    return {a.x - b.x, a.y - b.y};
}
inline Point operator*(Point a, double k) {
    return {a.x * k, a.y * k};
}
inline Point operator*(double k, Point a) {
    return a * k;
}
inline double dot(Point a, Point b) {
    return a.x * b.x + a.y * b.y;
}
inline double cross(Point a, Point b) {
    return a.x * b.y - a.y * b.x;
}
inline double length(Point a) {
    return maths::length(a.x, a.y);
}
inline Point unit(Point a) {
    return a * (1 / (length(a) + 1e-12));
}
inline Point lerp(Point a, Point b, double t) {
    return a + (b - a) * t;
}
/// Turned a quarter clockwise on the screen: what lies to the right of one walking along `a`.
inline Point rightOf(Point a) {
    return {-a.y, a.x};
}

/// Unit vector of a screen direction in degrees: 0 right, 90 down, -90 up, 180 left.
inline Point direction(double degrees) {
    const double a = maths::radians(degrees);
    return {maths::cos(a), maths::sin(a)};
}
/// The direction of a vector in degrees, see direction().
inline double angleOf(Point a) {
    return maths::degrees(maths::atan2(a.y, a.x));
}
/// The point `distance` away from `from` in the direction `degrees`.
inline Point polar(Point from, double degrees, double distance) {
    return from + direction(degrees) * distance;
}
inline Point rotate(Point p, double degrees, Point centre = {}) {
    const Point d = direction(degrees);
    const Point q = p - centre;
    return {centre.x + q.x * d.x - q.y * d.y, centre.y + q.x * d.y + q.y * d.x};
}

/// A place or direction in space; z towards the viewer.
struct Vector3 {
    double x = 0;
    double y = 0;
    double z = 0;
};

inline Vector3 operator+(Vector3 a, Vector3 b) {
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}
inline Vector3 operator-(Vector3 a, Vector3 b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}
inline Vector3 operator*(Vector3 a, double k) {
    return {a.x * k, a.y * k, a.z * k};
}
inline double dot(Vector3 a, Vector3 b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
inline Vector3 cross(Vector3 a, Vector3 b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
inline double length(Vector3 a) {
    return std::sqrt(dot(a, a));
}
inline Vector3 unit(Vector3 a) {
    return a * (1 / (length(a) + 1e-12));
}

} // namespace tambrelle::engraver
