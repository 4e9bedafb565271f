#include "platform/freedesktop/timer/ChoreTimer.h"

#include <utility>

namespace tambrelle {

ChoreTimer::ChoreTimer(std::unique_ptr<RepeatingTimer> timer, std::function<void()> chore)
    : timer(std::move(timer)), chore(std::move(chore)) {}

void ChoreTimer::start(std::chrono::milliseconds interval, std::function<void()> next) {
    action = std::move(next);
    timer->start(interval, [this] { fire(); });
}

[[gnu::hot]] void ChoreTimer::fire() {
    chore();
    action();
}

} // namespace tambrelle
