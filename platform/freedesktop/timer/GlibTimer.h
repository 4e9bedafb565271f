#pragma once

#include "platform/RepeatingTimer.h"

#include <chrono>
#include <functional>
#include <memory>

struct _GSource;

namespace tambrelle {

/// A timer on GLib's main loop, precise to the millisecond. Where the toolkit's event loop is made of that
/// one, to be called by it directly costs a tenth of a short action less than to be sent the toolkit's
/// events.
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
