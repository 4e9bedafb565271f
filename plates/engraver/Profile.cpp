#include "plates/engraver/Profile.h"

#include "plates/engraver/Path.h"

namespace tambrelle::engraver {

Profile::Profile(const std::vector<double>& knots) {
    if (knots.empty())
        return;
    if (knots.size() == 1) {
        values_.fill(knots[0]);
        return;
    }
    Path points;
    const double last = static_cast<double>(knots.size() - 1);
    for (std::size_t i = 0; i < knots.size(); ++i)
        points.push_back({static_cast<double>(i) / last, knots[i]});
    const Path curve = knots.size() < 4 ? points : spline(points, 24);
    std::size_t j = 0;
    for (std::size_t k = 0; k < size; ++k) {
        const double x = static_cast<double>(k) / (size - 1);
        while (j + 2 < curve.size() && curve[j + 1].x < x)
            ++j;
        const double w = curve[j + 1].x - curve[j].x;
        const double y =
            maths::lerp(curve[j].y, curve[j + 1].y, w > 1e-12 ? maths::clamp01((x - curve[j].x) / w) : 0);
        values_[k] = std::max(0.0, y);
    }
}

Profile::Profile(double (*function)(double)) {
    for (std::size_t k = 0; k < size; ++k)
        values_[k] = function(static_cast<double>(k) / (size - 1));
}

Profile Profile::times(double factor) const {
    Profile p = *this;
    for (double& v : p.values_)
        v *= factor;
    return p;
}

namespace shapes {

using maths::clamp01;
using maths::pi;
using maths::pow;

namespace {
double hump(double q, double warp, double fullness) {
    return pow(std::max(0.0, maths::sin(pi * pow(clamp01(q), warp))), fullness);
}
} // namespace

double linear(double q) {
    return hump(q, 0.5, 0.35) * (q > 0.75 ? std::sqrt(clamp01((1 - q) / 0.25)) : 1);
}
double lance(double q) {
    return hump(q, 0.75, 1.15);
}
double elliptic(double q) {
    return hump(q, 1, 0.75);
}
double ovate(double q) {
    return hump(q, 0.62, 0.9);
}
double obovate(double q) {
    return hump(q, 1.7, 0.8);
}
double cordate(double q) {
    return q < 0.02 ? 0 : pow(maths::sin(pi * pow(clamp01(q * 0.93 + 0.07), 0.55)), 0.8);
}
double orbicular(double q) {
    return std::sqrt(clamp01(1 - (2 * q - 1) * (2 * q - 1)));
}
double spatulate(double q) {
    static const Profile p{0.12, 0.16, 0.2, 0.34, 0.62, 0.95, 0.9, 0};
    return p(q);
}
double deltoid(double q) {
    return q < 0.3 ? pow(maths::sin(pi / 2 * clamp01(q / 0.3)), 0.7)
                   : pow(clamp01(1 - (q - 0.3) / 0.7), 0.95);
}
double feather(double q) {
    static const Profile p{0.5, 0.82, 0.96, 1, 0.93, 0};
    return p(q);
}

} // namespace shapes

} // namespace tambrelle::engraver
