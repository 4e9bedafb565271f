// A simulated life of the program, tick by tick. The seed is printed; TAMBRELLE_SEED gives it back, and
// TAMBRELLE_SOAK_TICKS makes a life longer or shorter.

#include "tests/soak/HeapUse.h"
#include "tests/soak/Life.h"
#include "tests/soak/Require.h"
#include "tests/support/ScopedTimeZone.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>
#include <random>

using namespace tambrelle;
using namespace tambrelle::soak;

namespace {

/// A year of 365 days of 100,000 ticks.
constexpr std::int64_t ticksOfAYear = 36'500'000;
/// What the sanitizers have the time for.
constexpr std::int64_t ticksOfSomeWeeks = 2'000'000;

/// The first part of a life fills caches and tables that are filled once.
constexpr std::int64_t settlingShare = 10;
/// What a life may have more at its end than when it had settled: the day's own texts differ in length.
constexpr std::size_t allowedGrowth = std::size_t{64} * 1024;

std::uint64_t chosenSeed() {
    if (const char* given = std::getenv("TAMBRELLE_SEED"))
        return std::strtoull(given, nullptr, 10);
    return std::random_device{}();
}

std::int64_t chosenTicks(std::int64_t otherwise) {
    const char* given = std::getenv("TAMBRELLE_SOAK_TICKS");
    return given != nullptr ? std::strtoll(given, nullptr, 10) : otherwise;
}

void print(const Tally& tally) {
    std::cout << tally.ticks << " ticks, " << tally.days << " days, " << tally.acts << " acts of the user, "
              << tally.jumps << " jumps of the clock, " << tally.zones << " zones, " << tally.starts
              << " starts\n"
              << tally.chimes << " chimes, " << tally.beeps << " alerts, " << tally.mornings
              << " mornings; in " << tally.wholeDays << " peaceful days " << tally.checkedChimes
              << " chimes and " << tally.checkedMornings << " mornings, each once\n";
}

Tally live(std::int64_t ticks) {
    const test::ScopedTimeZone zone("UTC");
    const std::uint64_t seed = chosenSeed();
    std::cout << "TAMBRELLE_SEED=" << seed << '\n';
    Life life(seed);
    std::size_t settled = 0;
    try {
        for (std::int64_t tick = 0; tick < ticks; ++tick) {
            life.tick();
            if (tick == ticks / settlingShare)
                settled = heapUse();
        }
    } catch (const Violation& violation) {
        ADD_FAILURE() << violation.what() << "\nTAMBRELLE_SEED=" << seed << ", " << life.whereabouts();
        return life.tally();
    }
    const std::size_t last = heapUse();
    print(life.tally());
    std::cout << "allocated: " << settled << " bytes when settled, " << last << " bytes at the end\n";
    EXPECT_LE(last, settled + allowedGrowth);
    return life.tally();
}

} // namespace

TEST(Soak, Weeks) {
    live(chosenTicks(ticksOfSomeWeeks));
}

TEST(Soak, Year) {
    const Tally tally = live(chosenTicks(ticksOfAYear));
    // A year without a single peaceful day would have shown little.
    EXPECT_GT(tally.checkedChimes, 100);
    EXPECT_GT(tally.checkedMornings, 10);
}
