#pragma once

#include "core/Instant.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <ctime>

namespace tambrelle::bench {

/// The one reading of the local zone that no conversion of an instant can do without; what the rest is
/// compared with.
inline void lookUpZone(Instant at) {
    ::tzset();
    const std::time_t seconds = std::chrono::floor<std::chrono::seconds>(at).time_since_epoch().count();
    std::tm civil{};
    benchmark::DoNotOptimize(::localtime_r(&seconds, &civil));
    benchmark::DoNotOptimize(civil);
}

} // namespace tambrelle::bench
