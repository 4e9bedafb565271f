#include "platform/freedesktop/notifications/PolledWakeUp.h"

#include "platform/Clock.h"

#include <algorithm>
#include <utility>

namespace tambrelle {

namespace {

/// After a change of zone the instant that was armed means nothing: the owner gets to look again this often.
constexpr std::chrono::seconds longestWait{30};

} // namespace

PolledWakeUp::PolledWakeUp(const Clock& clock) : clock(clock) {}

void PolledWakeUp::arm(Instant next, std::function<void()> onDue) {
    instant = next;
    due = std::move(onDue);
    waitFrom(clock.now());
}

void PolledWakeUp::disarm() {
    due = nullptr;
}

[[gnu::hot]] void PolledWakeUp::poll() {
    if (!due)
        return;
    const Instant now = clock.now();
    // On a clock that was set back the next call would be as far away as it went.
    const bool wentBack = now < lastPoll;
    lastPoll = now;
    if (now < nextCall && !wentBack)
        return;
    waitFrom(now);
    // The owner may arm or disarm from within.
    const auto call = due;
    call();
}

void PolledWakeUp::waitFrom(Instant now) {
    lastPoll = now;
    nextCall = std::min(instant, now + longestWait);
}

} // namespace tambrelle
