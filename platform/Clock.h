#pragma once

#include "core/Instant.h"

namespace tambrelle {

/// Where the application and the desktop's side of it ask for now, so that a test can set the time. Only the
/// count of days in `content/` has a form that asks the system itself, for those who have no clock at hand.
class Clock {
public:
    virtual ~Clock() = default;

    /// The present instant by the system's wall clock; it may jump in either direction between two calls.
    [[nodiscard]] virtual Instant now() const = 0;
};

} // namespace tambrelle
