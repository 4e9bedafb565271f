#pragma once

#include "core/RandomSource.h"

#include <cstdint>
#include <random>

namespace tambrelle::soak {

/// All that happens by chance, from one seed; the slogans are drawn from it too.
class Chance final : public RandomSource {
public:
    explicit Chance(std::uint64_t seed) : words(seed) {}

    std::uint64_t next() override { return words(); }

    /// True once in `times`, on average.
    bool oneIn(std::uint64_t times) { return words() % times == 0; }

    /// Any whole number from `low` to `high`.
    std::int64_t between(std::int64_t low, std::int64_t high) {
        return low + static_cast<std::int64_t>(words() % static_cast<std::uint64_t>(high - low + 1));
    }

private:
    std::mt19937_64 words;
};

} // namespace tambrelle::soak
