#include "platform/freedesktop/notifications/EventLoopWakeUp.h"

#include "platform/Clock.h"

#include <QAbstractEventDispatcher>

#include <algorithm>
#include <utility>

namespace tambrelle {

namespace {

using namespace std::chrono_literals;

/// After a change of zone the instant that was armed means nothing: the owner gets to look again this often.
constexpr std::chrono::milliseconds longestWait = 30s;

} // namespace

EventLoopWakeUp::EventLoopWakeUp(const Clock& clock) : clock(clock) {
    timer.setSingleShot(true);
    connect(&timer, &QTimer::timeout, this, [this] {
        // The owner may arm or disarm from within.
        const auto call = due;
        setTimer();
        call();
    });
}

void EventLoopWakeUp::arm(Instant next, std::function<void()> onDue) {
    instant = next;
    due = std::move(onDue);
    if (!wakes) {
        wakes = connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, this,
                        &EventLoopWakeUp::look);
    }
    setTimer();
}

void EventLoopWakeUp::disarm() {
    disconnect(wakes);
    wakes = {};
    timer.stop();
    due = nullptr;
}

void EventLoopWakeUp::look() {
    // The dispatcher is no place to run others' code: the timer does, at once.
    if (clock.now() >= instant && timer.remainingTime() != 0)
        timer.start(0);
}

void EventLoopWakeUp::setTimer() {
    // Rounded up: a millisecond early would be for nothing.
    const auto wait = std::chrono::ceil<std::chrono::milliseconds>(instant - clock.now());
    timer.start(std::clamp(wait, 0ms, longestWait));
}

} // namespace tambrelle
