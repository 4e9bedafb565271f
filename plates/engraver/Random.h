#pragma once

#include "plates/engraver/Maths.h"

#include <cstdint>
#include <string_view>

namespace tambrelle::engraver {

/// The engraver's hand: a splitmix64 sequence, so that the same seed draws the same plate with any compiler's
/// library.
class Random {
public:
    explicit Random(std::uint64_t seed) : state_(seed) {}
    /// Seeded from a name (FNV-1a), as every plate is from its image's name.
    explicit Random(std::string_view name) {
        std::uint64_t hash = 14695981039346656037ULL;
        for (const char c : name)
            hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211ULL;
        state_ = hash;
    }

    std::uint64_t bits() {
        state_ += 0x9E3779B97F4A7C15ULL;
        std::uint64_t z = state_;
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
        return z ^ (z >> 31);
    }
    /// Evenly in 0...1.
    double uniform() { return static_cast<double>(bits() >> 11) * 0x1p-53; }
    double uniform(double from, double to) { return from + (to - from) * uniform(); }
    /// Evenly in -spread...+spread.
    double around(double spread) { return uniform(-spread, spread); }
    /// Gaussian with the given standard deviation.
    double normal(double deviation) {
        const double u = std::max(uniform(), 1e-12);
        return deviation * std::sqrt(-2 * maths::log(u)) * maths::cos(2 * maths::pi * uniform());
    }
    bool chance(double probability) { return uniform() < probability; }

private:
    std::uint64_t state_ = 0;
};

} // namespace tambrelle::engraver
