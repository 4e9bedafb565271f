#pragma once

#include "core/Instant.h"

#include <cstdint>
#include <optional>

namespace tambrelle {

/// Where the application and the desktop's side of it ask for now, so that a test can set the time. Only the
/// count of days in `content/` has a form that asks the system itself, for those who have no clock at hand.
class Clock {
public:
    virtual ~Clock() = default;

    /// The present instant by the system's wall clock; it may jump in either direction between two calls.
    [[nodiscard]] virtual Instant now() const = 0;

    /// Another number than ever before once the system's zone has changed, at the latest half a minute later
    /// by what `now` has answered meanwhile. Absent, as it is by default: the zone may have changed at any
    /// time.
    [[nodiscard]] virtual std::optional<std::uint64_t> zoneGeneration() const { return std::nullopt; }
};

} // namespace tambrelle
