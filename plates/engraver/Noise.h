#pragma once

#include "plates/engraver/Field.h"

#include <cstdint>

namespace tambrelle::engraver {

/// Smooth noise of about unit deviation over the plane, one bump to each unit of its arguments; further
/// octaves stand at twice the density and `gain` times the height.
class Noise {
public:
    explicit Noise(std::uint64_t seed, int octaves = 1, double gain = 0.5)
        : seed_(seed), octaves_(octaves), gain_(gain) {}
    double operator()(double x, double y) const;

private:
    double octave(double x, double y, std::uint64_t salt) const;
    std::uint64_t seed_;
    int octaves_;
    double gain_;
};

} // namespace tambrelle::engraver
