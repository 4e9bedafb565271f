#pragma once

#include "platform/freedesktop/notifications/WakeUp.h"

namespace tambrelle {

class Clock;

/// Looks at the clock with each tick of a timer that runs anyway, and so wakes the program for nothing of its
/// own.
class PolledWakeUp final : public WakeUp {
public:
    explicit PolledWakeUp(const Clock& clock);

    void arm(Instant next, std::function<void()> onDue) override;
    void disarm() override;

    /// To be called about once a second, and by nothing that `due` may destroy.
    void poll();

private:
    void waitFrom(Instant now);

    const Clock& clock;
    Instant instant{};
    Instant nextCall{};
    Instant lastPoll{};
    std::function<void()> due; ///< empty while disarmed
};

} // namespace tambrelle
