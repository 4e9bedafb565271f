#pragma once

#include <cstdint>

namespace tambrelle {

/// A source of uniformly distributed 64-bit words.
class RandomSource {
public:
    RandomSource() = default;
    RandomSource(const RandomSource&) = delete;
    RandomSource& operator=(const RandomSource&) = delete;
    virtual ~RandomSource() = default;

    virtual std::uint64_t next() = 0;
};

} // namespace tambrelle
