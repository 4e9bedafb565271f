#pragma once

#include <chrono>
#include <functional>

namespace tambrelle {

/// A timer that fires on the main thread until it is destroyed.
class RepeatingTimer {
public:
    virtual ~RepeatingTimer() = default;

    /// Calls `action` every `interval`, which is positive, from now on; a timer already running is started
    /// anew. `action` must not start the timer itself: it would replace itself while it runs.
    virtual void start(std::chrono::milliseconds interval, std::function<void()> action) = 0;
};

} // namespace tambrelle
