#pragma once

#include "platform/RepeatingTimer.h"

#include <QTimer>

#include <functional>

namespace tambrelle {

/// A timer on the main thread's event loop, precise to the millisecond.
class EventLoopTimer final : public RepeatingTimer {
public:
    /// `beforeEach` is called ahead of each action, for what would otherwise need a timer of its own.
    explicit EventLoopTimer(std::function<void()> beforeEach = [] {});

    void start(std::chrono::milliseconds interval, std::function<void()> action) override;

private:
    QTimer timer;
    std::function<void()> beforeEach;
};

} // namespace tambrelle
