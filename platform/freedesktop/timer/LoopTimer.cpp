#include "platform/freedesktop/timer/LoopTimer.h"

#include "platform/freedesktop/timer/EventLoopTimer.h"
#include "platform/freedesktop/timer/GlibTimer.h"

namespace tambrelle {

std::unique_ptr<RepeatingTimer> makeLoopTimer() {
    if (GlibTimer::isServed())
        return std::make_unique<GlibTimer>();
    return std::make_unique<EventLoopTimer>();
}

} // namespace tambrelle
