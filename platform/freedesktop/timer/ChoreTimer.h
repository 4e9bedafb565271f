#pragma once

#include "platform/RepeatingTimer.h"

#include <functional>
#include <memory>

namespace tambrelle {

/// Passes the firings of another timer on, and does a chore ahead of each, which would otherwise need a timer
/// of its own.
class ChoreTimer final : public RepeatingTimer {
public:
    ChoreTimer(std::unique_ptr<RepeatingTimer> timer, std::function<void()> chore);

    void start(std::chrono::milliseconds interval, std::function<void()> next) override;

private:
    void fire();

    std::unique_ptr<RepeatingTimer> timer;
    std::function<void()> chore;
    std::function<void()> action;
};

} // namespace tambrelle
