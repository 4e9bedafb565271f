#include "platform/freedesktop/timer/EventLoopTimer.h"

#include <utility>

namespace tambrelle {

void EventLoopTimer::start(std::chrono::milliseconds interval, std::function<void()> next) {
    action = std::move(next);
    // The default, coarse type would turn 864 ms into 875 and skip every 79th decimal second.
    timer.start(static_cast<int>(interval.count()), Qt::PreciseTimer, this);
}

void EventLoopTimer::timerEvent(QTimerEvent* /*event*/) {
    action();
}

} // namespace tambrelle
