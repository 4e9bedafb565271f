#include "core/GregorianCalendar.h"
#include "core/RevolutionaryCalendar.h"
#include "tests/core/Limits.h"
#include "tests/support/ScopedTimeZone.h"

#include <gtest/gtest.h>

#include <optional>
#include <ostream>

namespace tambrelle {

void PrintTo(const CivilComponents& civil, std::ostream* out) {
    *out << civil.year << '-' << civil.month << '-' << civil.day << ' ' << civil.hour << ':' << civil.minute
         << ':' << civil.second;
}

void PrintTo(Instant instant, std::ostream* out) {
    *out << instant.time_since_epoch().count() << " µs";
}

namespace {

using test::greatest, test::least;

using namespace std::chrono_literals;
using GregorianCalendar::addingDays;
using GregorianCalendar::components;
using GregorianCalendar::daysBetween;
using GregorianCalendar::instant;
using GregorianCalendar::nextInstant;
using test::ScopedTimeZone;

Instant utc(int year, unsigned month, unsigned day, std::chrono::seconds timeOfDay = 0s) {
    return std::chrono::sys_days{std::chrono::year{year} / static_cast<int>(month) / static_cast<int>(day)} +
           timeOfDay;
}

TEST(GregorianCalendar, ReadsTheWallClock) {
    const ScopedTimeZone zone{"Europe/Paris"};
    EXPECT_EQ(components(utc(2025, 11, 15, 11h)), (CivilComponents{2025, 11, 15, 12, 0, 0}));
    EXPECT_EQ(components(utc(2025, 7, 14, 22h + 30min + 5s)), (CivilComponents{2025, 7, 15, 0, 30, 5}));
    EXPECT_EQ(instant({2025, 11, 15, 12, 0, 0}), utc(2025, 11, 15, 11h));
    EXPECT_EQ(instant({2025, 7, 15, 0, 30, 5}), utc(2025, 7, 14, 22h + 30min + 5s));
}

TEST(GregorianCalendar, DropsFractionsTowardsThePast) {
    const ScopedTimeZone zone{"UTC"};
    EXPECT_EQ(components(utc(1970, 1, 1) + 999'999us), (CivilComponents{1970, 1, 1, 0, 0, 0}));
    EXPECT_EQ(components(utc(1970, 1, 1) - 1us), (CivilComponents{1969, 12, 31, 23, 59, 59}));
}

TEST(GregorianCalendar, CountsLocalMeanTimeToTheSecond) {
    const ScopedTimeZone zone{"Europe/Paris"}; // 9 minutes 21 seconds ahead until 1911
    EXPECT_EQ(instant({1792, 9, 22, 0, 0, 0}), utc(1792, 9, 21, 23h + 50min + 39s));
    EXPECT_EQ(components(utc(1792, 9, 21, 23h + 50min + 38s)), (CivilComponents{1792, 9, 21, 23, 59, 59}));
}

TEST(GregorianCalendar, TakesAnUnknownZoneForUtc) {
    for (const char* name : {"Nowhere/Atlantis", ":/nonexistent", "", ":", "\xff\xfe", "../../etc/passwd"}) {
        const ScopedTimeZone zone{name};
        EXPECT_EQ(components(utc(2025, 7, 14, 12h)), (CivilComponents{2025, 7, 14, 12, 0, 0})) << name;
        EXPECT_EQ(instant({2025, 7, 14, 12, 0, 0}), utc(2025, 7, 14, 12h)) << name;
    }
}

TEST(GregorianCalendar, ReadsARuleWithoutAFile) {
    const ScopedTimeZone zone{"XXX-5:45YYY,M3.2.0/2,M11.1.0/2"};
    EXPECT_EQ(components(utc(2025, 1, 1)), (CivilComponents{2025, 1, 1, 5, 45, 0}));
    EXPECT_EQ(components(utc(2025, 7, 1)), (CivilComponents{2025, 7, 1, 6, 45, 0}));
}

TEST(GregorianCalendar, FollowsAChangeOfZoneAtOnce) {
    ScopedTimeZone zone{"Europe/Paris"};
    const Instant noon = utc(2025, 11, 15, 12h);
    EXPECT_EQ(components(noon)->hour, 13);
    zone.set("Asia/Tokyo");
    EXPECT_EQ(components(noon)->hour, 21);
    EXPECT_EQ(instant({2025, 11, 15, 21, 0, 0}), noon);
    zone.set("America/New_York");
    EXPECT_EQ(nextInstant({2025, 11, 15, 7, 0, 0}), noon);
    zone.set("Asia/Tokyo");
    EXPECT_EQ(daysBetween(utc(2025, 11, 14, 15h), utc(2025, 11, 15, 15h)), 1);
    EXPECT_EQ(components(*addingDays(1, noon)), (CivilComponents{2025, 11, 16, 21, 0, 0}));
}

TEST(GregorianCalendar, RefusesFieldsOutOfTheirRanges) {
    const ScopedTimeZone zone{"Europe/Paris"};
    for (const CivilComponents& civil : {CivilComponents{2025, 0, 1, 0, 0, 0},
                                         CivilComponents{2025, 13, 1, 0, 0, 0},
                                         CivilComponents{2025, 1, 0, 0, 0, 0},
                                         CivilComponents{2025, 1, 32, 0, 0, 0},
                                         CivilComponents{2025, 4, 31, 0, 0, 0},
                                         CivilComponents{2025, 2, 29, 0, 0, 0},
                                         CivilComponents{1900, 2, 29, 0, 0, 0},
                                         CivilComponents{2025, 1, 1, 24, 0, 0},
                                         CivilComponents{2025, 1, 1, 99, 0, 0},
                                         CivilComponents{2025, 1, 1, -1, 0, 0},
                                         CivilComponents{2025, 1, 1, 0, 60, 0},
                                         CivilComponents{2025, 1, 1, 0, -1, 0},
                                         CivilComponents{2025, 1, 1, 0, 0, 60},
                                         CivilComponents{2025, 1, 1, 0, 0, -1},
                                         CivilComponents{2025, greatest, 1, 0, 0, 0},
                                         CivilComponents{2025, 1, least, 0, 0, 0},
                                         CivilComponents{2025, 1, 1, greatest, greatest, greatest},
                                         CivilComponents{greatest, 1, 1, 0, 0, 0},
                                         CivilComponents{least, 1, 1, 0, 0, 0},
                                         CivilComponents{2'147'483'648, 1, 1, 0, 0, 0},
                                         CivilComponents{-2'147'483'649, 1, 1, 0, 0, 0},
                                         CivilComponents{2'147'483'647, 12, 31, 23, 59, 59},
                                         CivilComponents{-2'147'483'648, 1, 1, 0, 0, 0},
                                         CivilComponents{294'300, 1, 1, 0, 0, 0},
                                         CivilComponents{-294'300, 1, 1, 0, 0, 0}}) {
        EXPECT_FALSE(instant(civil).has_value()) << testing::PrintToString(civil);
        EXPECT_FALSE(nextInstant(civil).has_value()) << testing::PrintToString(civil);
    }
    EXPECT_TRUE(instant({2024, 2, 29, 23, 59, 59}).has_value());
    EXPECT_TRUE(instant({294'240, 1, 1, 0, 0, 0}).has_value());
    EXPECT_TRUE(instant({-290'300, 1, 1, 0, 0, 0}).has_value());
}

TEST(GregorianCalendar, CountsDaysByTheWallClock) {
    const ScopedTimeZone zone{"Europe/Paris"};
    const Instant noon = instant({2025, 11, 15, 12, 0, 0}).value();
    EXPECT_EQ(daysBetween(noon, noon), 0);
    EXPECT_EQ(daysBetween(noon, noon + 24h - 1us), 0);
    EXPECT_EQ(daysBetween(noon, noon + 24h), 1);
    EXPECT_EQ(daysBetween(noon, noon - 24h + 1us), 0);
    EXPECT_EQ(daysBetween(noon, noon - 24h), -1);
    EXPECT_EQ(daysBetween(noon + 500ms, noon + 24h), 0);
    EXPECT_EQ(daysBetween(noon, noon - 24h + 500ms), 0);
    EXPECT_EQ(daysBetween(noon - 24h, noon + 48h), 3);
}

TEST(GregorianCalendar, CountsADayOf23And25HoursAsOne) {
    const ScopedTimeZone zone{"Europe/Paris"};
    const auto noon = [](std::int64_t month, std::int64_t day) {
        return instant({2025, month, day, 12, 0, 0}).value();
    };
    EXPECT_EQ(noon(3, 30) - noon(3, 29), 23h);
    EXPECT_EQ(daysBetween(noon(3, 29), noon(3, 30)), 1);
    EXPECT_EQ(daysBetween(noon(3, 29), noon(3, 30) - 1us), 0);
    EXPECT_EQ(daysBetween(noon(3, 30), noon(3, 29)), -1);
    EXPECT_EQ(noon(10, 26) - noon(10, 25), 25h);
    EXPECT_EQ(daysBetween(noon(10, 25), noon(10, 25) + 24h), 0);
    EXPECT_EQ(daysBetween(noon(10, 25), noon(10, 26)), 1);
    EXPECT_EQ(daysBetween(noon(1, 1), noon(12, 31)), 364);
}

TEST(GregorianCalendar, CountsDaysOverTheWholeRange) {
    const ScopedTimeZone zone{"UTC"};
    const auto days = daysBetween(Instant::min(), Instant::max());
    EXPECT_EQ(days, 213'503'982); // 2^64 - 1 microseconds in days
    EXPECT_EQ(daysBetween(Instant::max(), Instant::min()), -213'503'982);
    EXPECT_EQ(addingDays(213'503'982, Instant::min()).has_value(), true);
    EXPECT_EQ(addingDays(213'503'983, Instant::min()), std::nullopt);
}

TEST(GregorianCalendar, NeverCountsAgainstTheRunOfTime) {
    const ScopedTimeZone zone{"America/Sitka"};            // lived 18 October 1867 twice
    const Instant change = utc(1867, 10, 19, 31min + 13s); // 15:30 local, when the clock went back by a day
    ASSERT_EQ(components(change)->day, 18);
    ASSERT_EQ(components(change - 1s)->day, 19);
    EXPECT_EQ(daysBetween(change - 1s, change), 0);
    EXPECT_EQ(daysBetween(change, change - 1s), 0);
}

TEST(GregorianCalendar, KeepsTheTimeOfDayWhenItAddsDays) {
    const ScopedTimeZone zone{"Europe/Paris"};
    const Instant start = instant({2025, 3, 29, 12, 34, 56}).value() + 789'012us;
    EXPECT_EQ(addingDays(0, start), start);
    EXPECT_EQ(addingDays(1, start), instant({2025, 3, 30, 12, 34, 56}).value() + 789'012us);
    EXPECT_EQ(addingDays(1, start).value() - start, 23h);
    EXPECT_EQ(addingDays(-88, start), instant({2024, 12, 31, 12, 34, 56}).value() + 789'012us);
    EXPECT_EQ(addingDays(-85'000, start), instant({1792, 7, 8, 12, 34, 56}).value() + 789'012us);
    for (std::int64_t days = -800; days <= 800; ++days)
        ASSERT_EQ(daysBetween(start, addingDays(days, start).value()), days);
}

TEST(GregorianCalendar, GivesNoDayOutOfRange) {
    const ScopedTimeZone zone{"Europe/Paris"};
    const Instant now = utc(2025, 11, 15);
    for (const std::int64_t days : {greatest, least, greatest / 86'400, least / 86'400, greatest / 86'400 / 4,
                                    std::int64_t{1'000'000'000'000}, std::int64_t{-1'000'000'000'000},
                                    std::int64_t{200'000'000}, std::int64_t{-200'000'000}})
        EXPECT_FALSE(addingDays(days, now).has_value()) << days;
    EXPECT_EQ(addingDays(0, Instant::max()), Instant::max());
    EXPECT_FALSE(addingDays(1, Instant::max()).has_value());
    EXPECT_FALSE(addingDays(-1, Instant::min()).has_value());
    EXPECT_TRUE(components(Instant::max()).has_value());
    EXPECT_TRUE(components(Instant::min()).has_value());
}

TEST(GregorianCalendar, SkipsTheHourThatSummerTimeSkips) {
    const ScopedTimeZone zone{"Europe/Paris"};
    const Instant change = utc(2025, 3, 30, 1h);
    EXPECT_EQ(instant({2025, 3, 30, 2, 30, 0}), std::nullopt);
    EXPECT_EQ(instant({2025, 3, 30, 2, 0, 0}), std::nullopt);
    EXPECT_EQ(instant({2025, 3, 30, 1, 59, 59}), change - 1s);
    EXPECT_EQ(instant({2025, 3, 30, 3, 0, 0}), change);
    EXPECT_EQ(nextInstant({2025, 3, 30, 2, 0, 0}), change);
    EXPECT_EQ(nextInstant({2025, 3, 30, 2, 30, 0}), change);
    EXPECT_EQ(nextInstant({2025, 3, 30, 2, 59, 59}), change);
    EXPECT_EQ(nextInstant({2025, 3, 30, 3, 30, 0}), change + 30min);
    EXPECT_EQ(addingDays(1, instant({2025, 3, 29, 2, 30, 0}).value() + 5us), change + 30min + 5us);
    EXPECT_EQ(addingDays(-1, instant({2025, 3, 31, 2, 30, 0}).value()), change + 30min);
}

TEST(GregorianCalendar, TakesTheFirstOfARepeatedHour) {
    const ScopedTimeZone zone{"Europe/Paris"};
    const Instant change = utc(2025, 10, 26, 1h);
    EXPECT_EQ(instant({2025, 10, 26, 2, 30, 0}), change - 30min);
    EXPECT_EQ(nextInstant({2025, 10, 26, 2, 30, 0}), change - 30min);
    EXPECT_EQ(instant({2025, 10, 26, 2, 0, 0}), change - 1h);
    EXPECT_EQ(instant({2025, 10, 26, 3, 0, 0}), change + 1h);
    EXPECT_EQ(addingDays(1, instant({2025, 10, 25, 2, 30, 0}).value()), change - 30min);
    EXPECT_EQ(addingDays(-1, instant({2025, 10, 27, 2, 30, 0}).value()), change - 30min);
    EXPECT_EQ(addingDays(0, change + 30min), change + 30min); // the second stays itself
}

struct SkippedMidnight {
    const char* zone;
    std::int64_t year, month, day; // a day that begins at 01:00
};

void PrintTo(const SkippedMidnight& row, std::ostream* out) {
    *out << row.zone << ' ' << row.year;
}

class SkippedMidnightTest : public testing::TestWithParam<SkippedMidnight> {};

TEST_P(SkippedMidnightTest, BeginsTheDayAtTheFirstInstantThatThereIs) {
    const auto& row = GetParam();
    const ScopedTimeZone zone{row.zone};
    const CivilComponents midnight{row.year, row.month, row.day, 0, 0, 0};
    EXPECT_EQ(instant(midnight), std::nullopt);
    const auto begin = nextInstant(midnight);
    ASSERT_TRUE(begin.has_value());
    EXPECT_EQ(components(*begin), (CivilComponents{row.year, row.month, row.day, 1, 0, 0}));
    EXPECT_EQ(components(*begin - 1s)->hour, 23);

    const auto before = RevolutionaryCalendar::fromGregorian(*begin - 1us);
    const auto after = RevolutionaryCalendar::fromGregorian(*begin);
    EXPECT_EQ(after.day, before.day + 1);
    EXPECT_EQ(RevolutionaryCalendar::toDecimalTime(*begin - 1us), (DecimalTime{9, 99, 98}));
    EXPECT_EQ(RevolutionaryCalendar::toDecimalTime(*begin), (DecimalTime{0, 41, 66}));

    const Instant dayBefore = addingDays(-1, *begin + 12h).value();
    EXPECT_EQ(daysBetween(dayBefore, *begin + 12h), 1);
    const Instant midnightBefore = instant({row.year, row.month, row.day - 1, 0, 0, 0}).value();
    EXPECT_EQ(addingDays(1, midnightBefore), *begin);
    EXPECT_EQ(daysBetween(midnightBefore, *begin - 1us), 0);
    EXPECT_EQ(daysBetween(midnightBefore, *begin), 1);
}

INSTANTIATE_TEST_SUITE_P(Zones, SkippedMidnightTest,
                         testing::Values(SkippedMidnight{"Africa/Cairo", 2023, 4, 28},
                                         SkippedMidnight{"Africa/Cairo", 2026, 4, 24},
                                         SkippedMidnight{"America/Sao_Paulo", 2018, 11, 4},
                                         SkippedMidnight{"America/Sao_Paulo", 1996, 10, 6},
                                         SkippedMidnight{"Asia/Beirut", 2022, 3, 27},
                                         SkippedMidnight{"Asia/Beirut", 2027, 3, 28},
                                         SkippedMidnight{"America/Havana", 2024, 3, 10},
                                         SkippedMidnight{"Asia/Tehran", 2022, 3, 22}));

TEST(GregorianCalendar, FollowsTheWallClockThroughARepeatedMidnight) {
    const ScopedTimeZone zone{"America/Sao_Paulo"}; // 17 February 2019 fell back at 00:00 to 23:00
    const Instant change = utc(2019, 2, 17, 2h);
    EXPECT_EQ(components(change - 1s), (CivilComponents{2019, 2, 16, 23, 59, 59}));
    EXPECT_EQ(components(change), (CivilComponents{2019, 2, 16, 23, 0, 0}));
    EXPECT_EQ(instant({2019, 2, 17, 0, 0, 0}), change + 1h);
    EXPECT_EQ(instant({2019, 2, 16, 23, 30, 0}), change - 30min);
    EXPECT_EQ(RevolutionaryCalendar::fromGregorian(change),
              RevolutionaryCalendar::fromGregorian(change - 1s));
}

TEST(GregorianCalendar, FollowsTheWallClockWhereADayBeginsTwice) {
    const ScopedTimeZone zone{
        "America/St_Johns"}; // on 7 November 2010 00:01 went back to 23:01 of the day before
    const Instant change = utc(2010, 11, 7, 2h + 31min);
    EXPECT_EQ(components(change - 1s), (CivilComponents{2010, 11, 7, 0, 0, 59}));
    EXPECT_EQ(components(change), (CivilComponents{2010, 11, 6, 23, 1, 0}));
    EXPECT_EQ(instant({2010, 11, 7, 0, 0, 30}), change - 30s);
    EXPECT_EQ(instant({2010, 11, 6, 23, 1, 0}), change - 1h);
    EXPECT_EQ(instant({2010, 11, 7, 0, 1, 0}), change + 1h);
    const auto dayOf = [](Instant at) { return RevolutionaryCalendar::fromGregorian(at).day; };
    EXPECT_EQ(dayOf(change - 1s), dayOf(change) + 1);
    EXPECT_EQ(dayOf(change + 59min), dayOf(change - 1s));

    // In spring 00:01 became 01:01: midnight itself exists, the minute after does not.
    const Instant spring = utc(2010, 3, 14, 3h + 31min);
    EXPECT_EQ(instant({2010, 3, 14, 0, 0, 0}), spring - 1min);
    EXPECT_EQ(instant({2010, 3, 14, 0, 1, 0}), std::nullopt);
    EXPECT_EQ(nextInstant({2010, 3, 14, 0, 30, 0}), spring);
}

TEST(GregorianCalendar, StepsOverADayThatAZoneLeftOut) {
    const ScopedTimeZone zone{"Pacific/Apia"}; // there was no 30 December 2011
    const Instant change = utc(2011, 12, 30, 10h);
    EXPECT_EQ(components(change - 1s), (CivilComponents{2011, 12, 29, 23, 59, 59}));
    EXPECT_EQ(components(change), (CivilComponents{2011, 12, 31, 0, 0, 0}));
    EXPECT_EQ(instant({2011, 12, 30, 12, 0, 0}), std::nullopt);
    EXPECT_EQ(nextInstant({2011, 12, 30, 12, 0, 0}), change);
    EXPECT_EQ(nextInstant({2011, 12, 30, 0, 0, 0}), change);
    EXPECT_EQ(daysBetween(change - 24h, change), 2);
    const Instant noon = instant({2011, 12, 29, 12, 0, 0}).value();
    EXPECT_EQ(addingDays(1, noon), noon + 24h);
    EXPECT_EQ(components(noon + 24h), (CivilComponents{2011, 12, 31, 12, 0, 0}));
    EXPECT_EQ(addingDays(2, noon), noon + 24h);
    EXPECT_EQ(addingDays(3, noon), noon + 48h);
    EXPECT_EQ(RevolutionaryCalendar::fromGregorian(change - 1us), (RevolutionaryDate{220, 4, 6, 6}));
    EXPECT_EQ(RevolutionaryCalendar::fromGregorian(change), (RevolutionaryDate{220, 4, 8, 8}));

    const ScopedTimeZone manila{"Asia/Manila"}; // there was no 31 December 1844
    EXPECT_EQ(instant({1844, 12, 31, 12, 0, 0}), std::nullopt);
    const Instant newYear = nextInstant({1844, 12, 31, 12, 0, 0}).value();
    EXPECT_EQ(components(newYear), (CivilComponents{1845, 1, 1, 0, 0, 0}));
    EXPECT_EQ(components(newYear - 1s), (CivilComponents{1844, 12, 30, 23, 59, 59}));
}

TEST(GregorianCalendar, KnowsHalfHoursOfSummerTime) {
    const ScopedTimeZone zone{"Australia/Lord_Howe"}; // 02:00 becomes 02:30
    EXPECT_EQ(instant({2025, 10, 5, 2, 15, 0}), std::nullopt);
    EXPECT_EQ(components(nextInstant({2025, 10, 5, 2, 15, 0}).value()),
              (CivilComponents{2025, 10, 5, 2, 30, 0}));
    EXPECT_EQ(components(*addingDays(1, instant({2025, 10, 4, 2, 15, 0}).value())),
              (CivilComponents{2025, 10, 5, 2, 45, 0}));
}

} // namespace
} // namespace tambrelle
