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
    /// The moment by the system's zone. `zone` is what it was in an earlier call only while the zone is the
    /// same; absent, the zone is read.
    [[nodiscard]] RevolutionaryMoment at(Instant now, std::optional<std::uint64_t> zone);

private:
    /// How far ahead the offset is looked up at most. It may change only once in that time.
    static constexpr std::chrono::seconds reach{60};

    struct Steady {
        std::uint64_t zone;
        Instant from;
        std::chrono::seconds offset; ///< of the wall clock, within `reach` from then on
    };

    std::optional<Steady> steady;
};

} // namespace tambrelle
