#pragma once

#include "platform/freedesktop/notifications/WakeUp.h"

#include <optional>
#include <utility>

namespace tambrelle::fakes {

/// Wakes its owner when the test says so.
class FakeWakeUp final : public WakeUp {
public:
    void arm(Instant instant, std::function<void()> onDue) override {
        ++arms;
        armed = instant;
        due = std::move(onDue);
    }

    void disarm() override {
        armed.reset();
        due = nullptr;
    }

    /// What the real one does at least twice a minute, and when the instant comes.
    void look() const {
        if (const auto call = due)
            call();
    }

    std::optional<Instant> armed;
    int arms = 0;

private:
    std::function<void()> due;
};

} // namespace tambrelle::fakes
