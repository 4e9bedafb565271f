#pragma once

#include "platform/freedesktop/notifications/WakeUp.h"

#include <QMetaObject>
#include <QObject>
#include <QTimer>

namespace tambrelle {

class Clock;

/// Looks at the clock whenever the event loop wakes anyway, which the calendar's own tick makes it do about
/// once a second and right after sleep. A timer of its own is there for the rest: to be on time, and to look
/// at least twice a minute. A kernel timer on the wall clock could do no more: it knows nothing of a change
/// of zone.
class EventLoopWakeUp final : public QObject, public WakeUp {
public:
    /// Needs the thread's event dispatcher.
    explicit EventLoopWakeUp(const Clock& clock);

    void arm(Instant instant, std::function<void()> due) override;
    void disarm() override;

private:
    void look();
    void setTimer();

    const Clock& clock;
    Instant instant{};
    std::function<void()> due;
    QTimer timer;
    QMetaObject::Connection wakes;
};

} // namespace tambrelle
