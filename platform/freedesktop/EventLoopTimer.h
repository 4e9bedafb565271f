#pragma once

#include "platform/RepeatingTimer.h"

#include <QTimer>

namespace tambrelle {

/// A timer on the main thread's event loop, precise to the millisecond.
class EventLoopTimer final : public RepeatingTimer {
public:
    void start(std::chrono::milliseconds interval, std::function<void()> action) override;

private:
    QTimer timer;
};

} // namespace tambrelle
