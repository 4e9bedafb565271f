#pragma once

#include <algorithm>
#include <cmath>

// The C library picks faster variants of its transcendental functions by processor, and they differ in the
// last digit. A plate must be the same bytes everywhere, so the engraver brings its own; only operations that
// IEEE 754 rounds exactly (sqrt, floor, ldexp ...) come from <cmath>.
namespace tambrelle::engraver::maths {

inline constexpr double pi = 3.14159265358979323846;

double sin(double x);
double cos(double x);
double exp(double x);
/// Natural logarithm; `x` must be positive.
double log(double x);
double log2(double x);
/// `x` to the power `y` for x >= 0; 0 to any power is 0.
double pow(double x, double y);
double tanh(double x);
double atan2(double y, double x);

inline double radians(double degrees) {
    return degrees * (pi / 180);
}
inline double degrees(double radians) {
    return radians * (180 / pi);
}
inline double length(double x, double y) {
    return std::sqrt(x * x + y * y);
}
inline double lerp(double a, double b, double t) {
    return a + (b - a) * t;
}
inline double clamp01(double x) {
    return x < 0 ? 0 : (x > 1 ? 1 : x);
}

/// Smooth step: 0 at `from`, 1 at `to` (which may be the smaller), level at both.
inline double smooth(double from, double to, double x) {
    const double span = to - from;
    const double t = clamp01((x - from) / (span == 0 ? 1e-9 : span));
    return t * t * (3 - 2 * t);
}

} // namespace tambrelle::engraver::maths
