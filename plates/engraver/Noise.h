#pragma once

#include "plates/engraver/Field.h"

#include <array>
#include <cstdint>

namespace tambrelle::engraver {

/// Smooth noise of about unit deviation over the plane, one bump to each unit of its arguments; further
/// octaves stand at twice the density and `gain` times the height.
class Noise {
public:
    explicit Noise(std::uint64_t seed, int octaves = 1, double gain = 0.5)
        : seed_(seed), octaves_(octaves), gain_(gain), cells_(static_cast<std::size_t>(octaves)) {}
    double operator()(double x, double y) const;

private:
    // The lattice values around the cell last asked for: neighbouring places mostly lie in the same one.
    struct Cell {
        std::int64_t x = INT64_MIN;
        std::int64_t y = 0;
        std::array<double, 16> values{};
    };
    double octave(double x, double y, int number) const;
    std::uint64_t seed_;
    int octaves_;
    double gain_;
    mutable std::vector<Cell> cells_; // one an octave
};

} // namespace tambrelle::engraver
