#include "platform/freedesktop/SystemClock.h"

namespace tambrelle {

Instant SystemClock::now() const {
    return std::chrono::floor<Instant::duration>(std::chrono::system_clock::now());
}

} // namespace tambrelle
