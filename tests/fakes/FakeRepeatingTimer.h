#pragma once

#include "platform/RepeatingTimer.h"

#include <chrono>
#include <functional>
#include <utility>

namespace tambrelle::fakes {

/// Fires when told to.
class FakeRepeatingTimer final : public RepeatingTimer {
public:
    void start(std::chrono::milliseconds every, std::function<void()> onFire) override {
        interval = every;
        action = std::move(onFire);
        ++starts;
    }

    /// Does nothing before the start.
    void fire() const {
        if (action)
            action();
    }

    std::chrono::milliseconds interval{0};
    int starts = 0;

private:
    std::function<void()> action;
};

} // namespace tambrelle::fakes
