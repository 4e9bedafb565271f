#include "platform/freedesktop/timer/TickTimer.h"

#include "platform/freedesktop/timer/EventLoopTimer.h"
#include "platform/freedesktop/timer/GlibTimer.h"

namespace tambrelle {

std::unique_ptr<RepeatingTimer> makeTickTimer() {
    if (GlibTimer::isServed())
        return std::make_unique<GlibTimer>();
    return std::make_unique<EventLoopTimer>();
}

} // namespace tambrelle
