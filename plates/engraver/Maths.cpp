#include "plates/engraver/Maths.h"

#include <array>
#include <cstddef>

namespace tambrelle::engraver::maths {

namespace {

constexpr double halfPiHigh = 1.57079632673412561417;
constexpr double halfPiLow = 6.07710050650619224932e-11;

// Terms of the series: 1, 1/3, 1/5 ... and 1, 1/1!, 1/2! ...; dividing anew in every step is what would cost.
constexpr std::array<double, 12> oddReciprocals{1.0 / 1,  1.0 / 3,  1.0 / 5,  1.0 / 7,  1.0 / 9,  1.0 / 11,
                                                1.0 / 13, 1.0 / 15, 1.0 / 17, 1.0 / 19, 1.0 / 21, 1.0 / 23};
constexpr std::array<double, 14> factorialReciprocals{
    1.0,        1.0,         1.0 / 2,      1.0 / 6,       1.0 / 24,       1.0 / 120,       1.0 / 720,
    1.0 / 5040, 1.0 / 40320, 1.0 / 362880, 1.0 / 3628800, 1.0 / 39916800, 1.0 / 479001600, 1.0 / 6227020800};

double sineNearZero(double r) {
    const double z = r * r;
    return r * (1 + z * (-1.0 / 6 +
                         z * (1.0 / 120 +
                              z * (-1.0 / 5040 +
                                   z * (1.0 / 362880 + z * (-1.0 / 39916800 + z * (1.0 / 6227020800.0)))))));
}

double cosineNearZero(double r) {
    const double z = r * r;
    return 1 +
           z * (-0.5 + z * (1.0 / 24 + z * (-1.0 / 720 + z * (1.0 / 40320 + z * (-1.0 / 3628800 +
                                                                                 z * (1.0 / 479001600.0))))));
}

// The sine of x + quarterTurns * 90 degrees.
double sineOfQuadrant(double x, int quarterTurns) {
    const double n = std::floor(x / (halfPiHigh + halfPiLow) + 0.5);
    const double r = (x - n * halfPiHigh) - n * halfPiLow;
    const int quadrant = (static_cast<int>(n - 4 * std::floor(n / 4)) + quarterTurns) & 3;
    switch (quadrant) {
    case 0:
        return sineNearZero(r);
    case 1:
        return cosineNearZero(r);
    case 2:
        return -sineNearZero(r);
    default:
        return -cosineNearZero(r);
    }
}

double arctangentBelowOne(double t) {
    constexpr double sqrt3 = 1.73205080756887729353;
    double offset = 0;
    if (t > 0.26794919243112270647) { // tan 15 degrees: fold the upper part onto the lower
        t = (t * sqrt3 - 1) / (sqrt3 + t);
        offset = pi / 6;
    }
    const double z = t * t;
    double sum = 0;
    for (std::size_t k = oddReciprocals.size(); k-- > 0;)
        sum = oddReciprocals[k] - z * sum;
    return offset + t * sum;
}

} // namespace

double sin(double x) {
    return sineOfQuadrant(x, 0);
}
double cos(double x) {
    return sineOfQuadrant(x, 1);
}

double exp(double x) {
    x = std::clamp(x, -700.0, 700.0);
    constexpr double ln2High = 0.693147180369123816490;
    constexpr double ln2Low = 1.90821492927058770002e-10;
    const double n = std::floor(x * 1.44269504088896340736 + 0.5);
    const double r = (x - n * ln2High) - n * ln2Low;
    double sum = 0;
    for (std::size_t k = factorialReciprocals.size(); k-- > 0;)
        sum = factorialReciprocals[k] + sum * r;
    return std::ldexp(sum, static_cast<int>(n));
}

double log(double x) {
    int exponent = 0;
    double m = std::frexp(x, &exponent);
    if (m < 0.70710678118654752440) {
        m *= 2;
        --exponent;
    }
    const double s = (m - 1) / (m + 1);
    const double z = s * s;
    double sum = 0;
    for (std::size_t k = 10; k-- > 0;)
        sum = oddReciprocals[k] + z * sum;
    return 2 * s * sum + exponent * 0.69314718055994530942;
}

double log2(double x) {
    return log(x) * 1.44269504088896340736;
}

double pow(double x, double y) {
    return x <= 0 ? 0 : exp(y * log(x));
}

double tanh(double x) {
    const double e = exp(-2 * std::fabs(x));
    const double t = (1 - e) / (1 + e);
    return x < 0 ? -t : t;
}

double atan2(double y, double x) {
    const double ax = std::fabs(x);
    const double ay = std::fabs(y);
    if (ax == 0 && ay == 0)
        return 0;
    double angle = ay <= ax ? arctangentBelowOne(ay / ax) : pi / 2 - arctangentBelowOne(ax / ay);
    if (x < 0)
        angle = pi - angle;
    return y < 0 ? -angle : angle;
}

} // namespace tambrelle::engraver::maths
