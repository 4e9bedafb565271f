#pragma once

#include "platform/RepeatingTimer.h"

#include <QTimer>

#include <functional>

namespace tambrelle {

/// A timer on the main thread's event loop, precise to the millisecond.
class EventLoopTimer final : public RepeatingTimer {
public:
    /// `first` is called ahead of each action, for what would otherwise need a timer of its own.
    explicit EventLoopTimer(std::function<void()> first = [] {});

    void start(std::chrono::milliseconds interval, std::function<void()> action) override;

private:
    QTimer timer;
    std::function<void()> first;
};

} // namespace tambrelle
