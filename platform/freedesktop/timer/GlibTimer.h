#pragma once

#include "platform/RepeatingTimer.h"

#include <chrono>
#include <functional>
#include <memory>

struct _GSource;

namespace tambrelle {

/// A timer on GLib's main loop, precise to the millisecond. Where the toolkit's event loop is made of that
/// loop, a firing costs less than one of the toolkit's timers, which comes as an event.
class GlibTimer final : public RepeatingTimer {
public:
    GlibTimer() = default;
    ~GlibTimer() override;
    GlibTimer(const GlibTimer&) = delete;
    GlibTimer& operator=(const GlibTimer&) = delete;

    /// Whether the main thread runs GLib's main loop; without that the timer never fires. Needs the toolkit's
    /// application object.
    [[nodiscard]] static bool isServed();

    void start(std::chrono::milliseconds interval, std::function<void()> next) override;

    /// When to fire again after the firing that was `due`, and comes `now`: an interval later, however late
    /// it comes, and after a pause once, not once for each firing that was missed.
    [[nodiscard]] static std::chrono::microseconds
    nextDue(std::chrono::microseconds due, std::chrono::microseconds now, std::chrono::microseconds interval);

private:
    void fire();

    struct Remove {
        void operator()(_GSource* source) const;
    };

    std::unique_ptr<_GSource, Remove> source;
    std::chrono::microseconds interval{};
    std::chrono::microseconds due{}; ///< of the next firing, on GLib's monotonic clock
    std::function<void()> action;
};

} // namespace tambrelle
