// A whole tick: the timer's call, the update, the announcement, and the refresh of the line that it
// asks for. The clock stands still, so that the text never changes; the bar is never told. "lookups" is the
// cost in zone lookups (tzset and localtime_r, measured in the same run), which every conversion of an
// instant needs.
#include "app/CalendarManager.h"
#include "app/NotificationManager.h"
#include "app/SoundManager.h"
#include "bench/ZoneLookup.h"
#include "tests/fakes/FakePlatform.h"
#include "ui/MenuBarLabel.h"

#include <QCoreApplication>

#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdlib>

namespace tambrelle {
namespace {

constexpr Instant noon = std::chrono::sys_days(std::chrono::year{2025} / 11 / 15) + std::chrono::hours(11);

void zoneLookup(benchmark::State& state) {
    for ([[maybe_unused]] const auto _ : state)
        bench::lookUpZone(noon);
}
BENCHMARK(zoneLookup);

/// Nanoseconds of one lookup here and now.
double lookupCost() {
    constexpr int repetitions = 20000;
    const auto begin = std::chrono::steady_clock::now();
    for (int i = 0; i < repetitions; ++i)
        bench::lookUpZone(noon);
    return std::chrono::duration<double, std::nano>(std::chrono::steady_clock::now() - begin).count() /
           repetitions;
}

/// The application without its windows, on a desktop of fakes.
struct Ticking {
    Ticking() {
        platform.clock.set(noon);
        platform.clock.beginZoneGeneration();
    }

    void tick() const { platform.timer.fire(); }

    fakes::FakePlatform platform;
    SoundManager sound{{platform.defaults, platform.resources, platform.audioPlayer, platform.systemSound}};
    NotificationManager notifications{{platform.clock, platform.defaults, platform.notifications}};
};

void tickWithoutChange(benchmark::State& state) {
    Ticking ticking;
    auto& platform = ticking.platform;
    const CalendarManager manager({platform.clock, platform.timer, platform.random, platform.defaults,
                                   ticking.sound, ticking.notifications});
    const MenuBarLabel label(manager, platform.statusItem);
    const double lookup = lookupCost();
    const auto begin = std::chrono::steady_clock::now();
    for ([[maybe_unused]] const auto _ : state)
        ticking.tick();
    const std::chrono::duration<double, std::nano> passed = std::chrono::steady_clock::now() - begin;
    if (platform.statusItem.presented.size() != 1)
        state.SkipWithError("the bar was told of a line that did not change");
    state.counters["lookups"] = passed.count() / static_cast<double>(state.iterations()) / lookup;
}
BENCHMARK(tickWithoutChange);

} // namespace
} // namespace tambrelle

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}
