#include "platform/freedesktop/EventLoopTimer.h"

namespace tambrelle {

void EventLoopTimer::start(std::chrono::milliseconds interval, std::function<void()> action) {
    // The default, coarse type would turn 864 ms into 875 and skip every 79th decimal second.
    timer.setTimerType(Qt::PreciseTimer);
    timer.disconnect();
    QObject::connect(&timer, &QTimer::timeout, &timer, std::move(action));
    timer.start(interval);
}

} // namespace tambrelle
