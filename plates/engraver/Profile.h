#pragma once

#include "plates/engraver/Maths.h"

#include <array>
#include <initializer_list>
#include <vector>

namespace tambrelle::engraver {

/// How a measure (a half width, a radius) runs along an organ, from its base (0) to its tip (1).
///
/// Made from one number (constant), from two or three numbers (straight between them), from four or more (a
/// smooth curve through them), or from a function of 0...1.
class Profile {
public:
    Profile(double constant) { values_.fill(constant); }
    Profile(int constant) : Profile(static_cast<double>(constant)) {}
    Profile(std::initializer_list<double> knots) : Profile(std::vector<double>(knots)) {}
    Profile(const std::vector<double>& knots);
    Profile(double (*function)(double));

    double operator()(double q) const {
        const double x = maths::clamp01(q) * (size - 1);
        const auto i = std::min(static_cast<std::size_t>(x), size - 2);
        return maths::lerp(values_[i], values_[i + 1], x - static_cast<double>(i));
    }
    double greatest() const { return *std::max_element(values_.begin(), values_.end()); }
    /// Where, in 0...1, the greatest value stands.
    double greatestAt() const {
        return static_cast<double>(std::max_element(values_.begin(), values_.end()) - values_.begin()) /
               (size - 1);
    }
    Profile times(double factor) const;

private:
    static constexpr std::size_t size = 201;
    std::array<double, size> values_{};
};

/// Outlines of leaves and petals as half widths from base to tip, 1 at the widest.
namespace shapes {
double linear(double q);
double lance(double q);
double elliptic(double q);
double ovate(double q);
double obovate(double q);
double cordate(double q);
double orbicular(double q);
double spatulate(double q);
double deltoid(double q);
/// A feather: parallel sides, rounded tip.
double feather(double q);
} // namespace shapes

} // namespace tambrelle::engraver
