#include "core/CivilDays.h"

#include <gtest/gtest.h>

#include <chrono>

namespace tambrelle {
namespace {

TEST(CivilDays, CountsFromTheUnixEpoch) {
    EXPECT_EQ(civilDayNumber(1970, 1, 1), 0);
    EXPECT_EQ(civilDayNumber(1969, 12, 31), -1);
    EXPECT_EQ(civilDayNumber(2000, 3, 1), 11'017);
    EXPECT_EQ(civilDayNumber(1792, 9, 22), -64'748);
}

TEST(CivilDays, AgreesWithTheStandardLibraryOnEveryDayOfItsYears) {
    using namespace std::chrono;
    // Every day over four centuries either side of year 0 and of today, then a spread over the library's
    // whole range.
    for (sys_days day = sys_days{year{-800} / 1 / 1}; day < sys_days{year{2800} / 1 / 1}; day += days{1}) {
        const year_month_day civil{day};
        ASSERT_EQ(civilDayNumber(int{civil.year()}, unsigned{civil.month()}, unsigned{civil.day()}),
                  day.time_since_epoch().count());
    }
    for (sys_days day = sys_days{year{-32767} / 1 / 1}; day < sys_days{year{32767} / 1 / 1};
         day += days{97}) {
        const year_month_day civil{day};
        ASSERT_EQ(civilDayNumber(int{civil.year()}, unsigned{civil.month()}, unsigned{civil.day()}),
                  day.time_since_epoch().count());
    }
}

TEST(CivilDays, HoldsForEveryYearThatFitsAnInt) {
    constexpr std::int64_t greatest = 2'147'483'647;
    constexpr std::int64_t least = -2'147'483'648;
    EXPECT_EQ(civilDayNumber(greatest, 12, 31) - civilDayNumber(greatest, 1, 1), 364);
    // 400 years are always 146,097 days.
    EXPECT_EQ(civilDayNumber(greatest, 1, 1) - civilDayNumber(greatest - std::int64_t{400} * 5'000'000, 1, 1),
              146'097LL * 5'000'000);
    EXPECT_EQ(civilDayNumber(least + std::int64_t{400} * 5'000'000, 1, 1) - civilDayNumber(least, 1, 1),
              146'097LL * 5'000'000);
}

TEST(CivilDays, KnowsTheLengthsOfTheMonths) {
    EXPECT_EQ(daysInGregorianMonth(2023, 2), 28);
    EXPECT_EQ(daysInGregorianMonth(2024, 2), 29);
    EXPECT_EQ(daysInGregorianMonth(1900, 2), 28);
    EXPECT_EQ(daysInGregorianMonth(2000, 2), 29);
    EXPECT_EQ(daysInGregorianMonth(2023, 12), 31);
    EXPECT_EQ(daysInGregorianMonth(2023, 4), 30);
}

} // namespace
} // namespace tambrelle
