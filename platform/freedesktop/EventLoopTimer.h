#pragma once

#include "platform/RepeatingTimer.h"

#include <QBasicTimer>
#include <QObject>

#include <functional>

namespace tambrelle {

/// A timer on the main thread's event loop, precise to the millisecond.
class EventLoopTimer final : public QObject, public RepeatingTimer {
    Q_OBJECT

public:
    /// `beforeEach` is called ahead of each action, for what would otherwise need a timer of its own.
    explicit EventLoopTimer(std::function<void()> beforeEach = [] {});

    void start(std::chrono::milliseconds interval, std::function<void()> next) override;

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    // By way of events: a signal would double what the toolkit does for each tick.
    QBasicTimer timer;
    std::function<void()> beforeEach;
    std::function<void()> action;
};

} // namespace tambrelle
