#include "platform/freedesktop/EventLoopTimer.h"

#include <utility>

namespace tambrelle {

EventLoopTimer::EventLoopTimer(std::function<void()> beforeEach) : beforeEach(std::move(beforeEach)) {}

void EventLoopTimer::start(std::chrono::milliseconds interval, std::function<void()> next) {
    action = std::move(next);
    // The default, coarse type would turn 864 ms into 875 and skip every 79th decimal second.
    timer.start(static_cast<int>(interval.count()), Qt::PreciseTimer, this);
}

[[gnu::hot]] void EventLoopTimer::timerEvent(QTimerEvent* /*event*/) {
    beforeEach();
    action();
}

} // namespace tambrelle
