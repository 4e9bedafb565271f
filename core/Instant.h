#pragma once

#include <chrono>

namespace tambrelle {

/// A point in absolute time, in microseconds since 1970-01-01 00:00:00 UTC. Carries no time zone.
using Instant = std::chrono::sys_time<std::chrono::microseconds>;

} // namespace tambrelle
