#pragma once

#include "core/Instant.h"
#include "core/RevolutionaryCalendar.h"

#include <chrono>
#include <cstdint>
#include <optional>

namespace tambrelle {

/// Reads the moment again and again, and the zone only when it has to: to read the zone is most of what a
/// moment costs, and asks the kernel each time.
class MomentReader {
public:
    /// The moment by the system's zone, whose `generation` is another one after each change; absent, the zone
    /// is read.
    [[nodiscard]] RevolutionaryMoment at(Instant now, std::optional<std::uint64_t> generation);

private:
    /// How far ahead the offset is looked up at most. It may change only once in that time.
    static constexpr std::chrono::seconds span{600};

    struct Steady {
        std::uint64_t generation;
        Instant from;
        std::chrono::seconds offset; ///< of the wall clock, within `span` from then on
    };

    std::optional<Steady> steady;
};

} // namespace tambrelle
