#include "plates/engraver/Noise.h"

#include "plates/engraver/Maths.h"

namespace tambrelle::engraver {

namespace {

// A hash of a lattice point, spread over about -1.7 ... 1.7 (unit variance).
double latticeValue(std::int64_t x, std::int64_t y, std::uint64_t seed) {
    std::uint64_t z = seed + static_cast<std::uint64_t>(x) * 0x9E3779B97F4A7C15ULL +
                      static_cast<std::uint64_t>(y) * 0xC2B2AE3D27D4EB4FULL;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
    z ^= z >> 31;
    return (static_cast<double>(z >> 11) * 0x1p-53 - 0.5) * 3.46;
}

double cubic(double a, double b, double c, double d, double t) {
    return b + 0.5 * t * (c - a + t * (2 * a - 5 * b + 4 * c - d + t * (3 * (b - c) + d - a)));
}

} // namespace

double Noise::octave(double x, double y, int number) const {
    const double fx = std::floor(x), fy = std::floor(y);
    const auto ix = static_cast<std::int64_t>(fx), iy = static_cast<std::int64_t>(fy);
    Cell& cell = cells_[static_cast<std::size_t>(number)];
    if (cell.x != ix || cell.y != iy) {
        const std::uint64_t seed = seed_ + static_cast<std::uint64_t>(number) * 7919;
        cell.x = ix;
        cell.y = iy;
        std::size_t k = 0;
        for (std::int64_t row = iy - 1; row <= iy + 2; ++row)
            for (std::int64_t column = ix - 1; column <= ix + 2; ++column)
                cell.values[k++] = latticeValue(column, row, seed);
    }
    const std::array<double, 16>& v = cell.values;
    const double t = x - fx;
    return cubic(cubic(v[0], v[1], v[2], v[3], t), cubic(v[4], v[5], v[6], v[7], t),
                 cubic(v[8], v[9], v[10], v[11], t), cubic(v[12], v[13], v[14], v[15], t), y - fy);
}

double Noise::operator()(double x, double y) const {
    double sum = 0, height = 1;
    for (int k = 0; k < octaves_; ++k) {
        sum += height * octave(x, y, k);
        x = x * 2 + 17.3;
        y = y * 2 + 5.7;
        height *= gain_;
    }
    return sum;
}

} // namespace tambrelle::engraver
