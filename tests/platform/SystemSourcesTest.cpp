#include "platform/freedesktop/SystemClock.h"
#include "platform/freedesktop/SystemRandomSource.h"

#include <chrono>
#include <cstdint>
#include <gtest/gtest.h>
#include <set>

namespace tambrelle {
namespace {

TEST(SystemClockTest, ShowsTheSystemsTimeInMicroseconds) {
    const auto before = std::chrono::floor<Instant::duration>(std::chrono::system_clock::now());
    const Instant now = SystemClock().now();
    const auto after = std::chrono::floor<Instant::duration>(std::chrono::system_clock::now());
    EXPECT_LE(before, now);
    EXPECT_LE(now, after);
}

TEST(SystemClockTest, NamesAStateOfTheZoneThatLastsForSeconds) {
    const SystemClock clock;
    const auto first = clock.zone();
    ASSERT_TRUE(first.has_value());
    // At worst the ten seconds end between two of these.
    const auto second = clock.zone();
    const auto third = clock.zone();
    EXPECT_TRUE(second == first || third == second);
    EXPECT_LE(first, third);
}

TEST(SystemRandomSourceTest, WordsDifferAndEveryBitIsDrawnBothWays) {
    SystemRandomSource source;
    std::set<std::uint64_t> words;
    std::uint64_t everSet = 0;
    std::uint64_t everClear = 0;
    for (int draw = 0; draw < 256; ++draw) {
        const std::uint64_t word = source.next();
        words.insert(word);
        everSet |= word;
        everClear |= ~word;
    }
    EXPECT_EQ(words.size(), 256U) << "the odds against are 2^49 to 1";
    EXPECT_EQ(everSet, UINT64_MAX);
    EXPECT_EQ(everClear, UINT64_MAX);
}

} // namespace
} // namespace tambrelle
