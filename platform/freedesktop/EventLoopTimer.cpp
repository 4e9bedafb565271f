#include "platform/freedesktop/EventLoopTimer.h"

#include <utility>

namespace tambrelle {

EventLoopTimer::EventLoopTimer(std::function<void()> beforeEach) : beforeEach(std::move(beforeEach)) {}

void EventLoopTimer::start(std::chrono::milliseconds interval, std::function<void()> action) {
    // The default, coarse type would turn 864 ms into 875 and skip every 79th decimal second.
    timer.setTimerType(Qt::PreciseTimer);
    timer.disconnect();
    QObject::connect(&timer, &QTimer::timeout, &timer, [this, action = std::move(action)] {
        beforeEach();
        action();
    });
    timer.start(interval);
}

} // namespace tambrelle
