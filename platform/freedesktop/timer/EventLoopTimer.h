#pragma once

#include "platform/RepeatingTimer.h"

#include <QBasicTimer>
#include <QObject>

#include <functional>

namespace tambrelle {

/// A timer on the main thread's event loop, whatever that is made of; precise to the millisecond.
class EventLoopTimer final : public QObject, public RepeatingTimer {
    Q_OBJECT

public:
    void start(std::chrono::milliseconds interval, std::function<void()> next) override;

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    // By way of events: a signal would double what the toolkit does for each firing.
    QBasicTimer timer;
    std::function<void()> action;
};

} // namespace tambrelle
