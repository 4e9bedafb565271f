// What a conversion costs beside the one reading of the zone that it cannot do without, timed turn about in
// the same run.

#include "bench/ZoneLookup.h"
#include "core/RevolutionaryCalendar.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdlib>
#include <string>

namespace {

using namespace tambrelle;
using SteadyClock = std::chrono::steady_clock;

constexpr int callsATurn = 200;
constexpr Instant noon{std::chrono::sys_days{std::chrono::year{2025} / 11 / 15} + std::chrono::hours{12}};
constexpr std::chrono::milliseconds decimalSecond{864};

template <typename Operation>
SteadyClock::duration timeOfTurn(Instant start, Operation operation) {
    const auto begin = SteadyClock::now();
    for (int call = 0; call < callsATurn; ++call)
        operation(start + call * decimalSecond);
    return SteadyClock::now() - begin;
}

template <typename Operation>
void compare(benchmark::State& state, const char* zone, Operation operation) {
    if (zone != nullptr)
        setenv("TZ", zone, 1);
    else
        unsetenv("TZ");
    SteadyClock::duration zoneTime{};
    SteadyClock::duration operationTime{};
    Instant at = noon;
    for (auto _ : state) {
        zoneTime += timeOfTurn(at, bench::lookUpZone);
        const auto turn = timeOfTurn(at, operation);
        operationTime += turn;
        state.SetIterationTime(std::chrono::duration<double>(turn).count()); // of a whole turn
        at += callsATurn * decimalSecond;
    }
    const auto nanosecondsACall = [&state](SteadyClock::duration sum) {
        return std::chrono::duration<double, std::nano>(sum).count() / callsATurn /
               static_cast<double>(state.iterations());
    };
    state.counters["call_ns"] = nanosecondsACall(operationTime);
    state.counters["zone_ns"] = nanosecondsACall(zoneTime);
    state.counters["ratio_to_zone"] = nanosecondsACall(operationTime) / nanosecondsACall(zoneTime);
}

void fromGregorian(benchmark::State& state, const char* zone) {
    compare(state, zone,
            [](Instant at) { benchmark::DoNotOptimize(RevolutionaryCalendar::fromGregorian(at)); });
}

void toDecimalTime(benchmark::State& state, const char* zone) {
    compare(state, zone,
            [](Instant at) { benchmark::DoNotOptimize(RevolutionaryCalendar::toDecimalTime(at)); });
}

// Without TZ the C library looks at /etc/localtime on every call.
BENCHMARK_CAPTURE(fromGregorian, Paris, "Europe/Paris")->UseManualTime();
BENCHMARK_CAPTURE(fromGregorian, UTC, "UTC")->UseManualTime();
BENCHMARK_CAPTURE(fromGregorian, localtime, nullptr)->UseManualTime();
BENCHMARK_CAPTURE(toDecimalTime, Paris, "Europe/Paris")->UseManualTime();
BENCHMARK_CAPTURE(toDecimalTime, UTC, "UTC")->UseManualTime();
BENCHMARK_CAPTURE(toDecimalTime, localtime, nullptr)->UseManualTime();

} // namespace
