#pragma once

#include "core/RandomSource.h"

namespace tambrelle {

/// The operating system's secure random source.
class SystemRandomSource final : public RandomSource {
public:
    /// Stops the program should the kernel refuse, which it does not for so few bytes once it has booted.
    std::uint64_t next() override;
};

} // namespace tambrelle
