#pragma once

#include "platform/RepeatingTimer.h"

#include <functional>
#include <memory>

namespace tambrelle {

/// Another timer that also does a chore now and then, for what would otherwise need a timer of its own.
class ChoreTimer final : public RepeatingTimer {
public:
    /// The chore is done ahead of the first action, and of each that follows so many actions later.
    static constexpr int actionsPerChore = 8;

    ChoreTimer(std::unique_ptr<RepeatingTimer> timer, std::function<void()> chore);

    void start(std::chrono::milliseconds interval, std::function<void()> next) override;

private:
    void fire();

    std::unique_ptr<RepeatingTimer> timer;
    std::function<void()> chore;
    std::function<void()> action;
    int actionsToChore = 0;
};

} // namespace tambrelle
