#pragma once

#include "core/Instant.h"

#include <functional>

namespace tambrelle {

/// Calls back when the wall clock has reached an instant, however it got there.
class WakeUp {
public:
    virtual ~WakeUp() = default;

    /// `due` is called when the clock shows `instant` or later: within a second when time passes as usual,
    /// and within a minute after sleep or a jump of the clock. It may be called early, so that its owner
    /// looks again at what the zone has become. Replaces what was armed before; armed once, called until
    /// disarmed.
    virtual void arm(Instant instant, std::function<void()> due) = 0;

    virtual void disarm() = 0;
};

} // namespace tambrelle
