#pragma once

#include "core/Instant.h"

namespace tambrelle {

/// The one place that asks for now, so that a test can set the time.
class Clock {
public:
    virtual ~Clock() = default;

    /// The present instant by the system's wall clock; it may jump in either direction between two calls.
    [[nodiscard]] virtual Instant now() const = 0;
};

} // namespace tambrelle
