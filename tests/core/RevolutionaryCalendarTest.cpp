#include "core/RevolutionaryCalendar.h"
#include "core/GregorianCalendar.h"
#include "tests/core/Limits.h"
#include "tests/support/Lack.h"
#include "tests/support/LocalInstant.h"
#include "tests/support/ScopedTimeZone.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <concepts>
#include <filesystem>
#include <string>
#include <type_traits>

namespace tambrelle {
namespace {

using namespace std::chrono_literals;
using namespace RevolutionaryCalendar;

static_assert(std::equality_comparable<RevolutionaryDate> && !std::totally_ordered<RevolutionaryDate>);
static_assert(std::equality_comparable<DecimalTime> && !std::totally_ordered<DecimalTime>);
static_assert(std::is_aggregate_v<RevolutionaryDate> &&
              sizeof(RevolutionaryDate) == 4 * sizeof(std::int64_t));
static_assert(std::is_aggregate_v<DecimalTime> && sizeof(DecimalTime) == 3 * sizeof(std::int64_t));

using test::greatest, test::least, test::local;

// The rule as it is told: year after year is taken off the count.
RevolutionaryDate countedYearByYear(std::int64_t days) {
    if (days < 0)
        return {1, 1, 1, 1};
    std::int64_t year = 1;
    std::int64_t rest = days;
    for (;; ++year) {
        const std::int64_t length = (year + 1) % 4 == 0 ? 366 : 365;
        if (rest < length)
            break;
        rest -= length;
    }
    if (rest >= 360)
        return {year, 13, rest - 359, rest - 359};
    return {year, rest / 30 + 1, rest % 30 + 1, rest % 30 % 10 + 1};
}

TEST(RepublicanDate, FollowsTheWorkedValuesAtAnyTimeOfDay) {
    struct Row {
        CivilComponents civil;
        RevolutionaryDate date;
    };
    for (const char* zoneName :
         {"Europe/Paris", "UTC", "Asia/Kolkata", "America/St_Johns", "Pacific/Kiritimati"}) {
        const test::ScopedTimeZone zone{zoneName};
        for (const Row& row :
             {Row{{1792, 9, 21, 0, 0, 0}, {1, 1, 1, 1}}, Row{{1792, 9, 22, 0, 0, 0}, {1, 1, 1, 1}},
              Row{{1795, 9, 22, 0, 0, 0}, {3, 13, 6, 6}}, Row{{1795, 9, 23, 0, 0, 0}, {4, 1, 1, 1}},
              Row{{2025, 9, 23, 0, 0, 0}, {233, 13, 5, 5}}, Row{{2025, 9, 24, 0, 0, 0}, {234, 1, 1, 1}},
              Row{{2025, 11, 15, 0, 0, 0}, {234, 2, 23, 3}}}) {
            for (const std::int64_t hour : {0, 1, 11, 12, 23}) {
                CivilComponents civil = row.civil;
                civil.hour = hour;
                EXPECT_EQ(fromGregorian(local(civil)), row.date) << zoneName << " " << civil.year;
                civil.minute = 59;
                civil.second = 59;
                EXPECT_EQ(fromGregorian(local(civil) + 999'999us), row.date) << zoneName << " " << civil.year;
            }
        }
    }
}

TEST(RepublicanDate, CountsTheDaysOfTheWorkedValues) {
    EXPECT_EQ(fromDayNumber(-1), (RevolutionaryDate{1, 1, 1, 1}));
    EXPECT_EQ(fromDayNumber(0), (RevolutionaryDate{1, 1, 1, 1}));
    EXPECT_EQ(fromDayNumber(1095), (RevolutionaryDate{3, 13, 6, 6}));
    EXPECT_EQ(fromDayNumber(1096), (RevolutionaryDate{4, 1, 1, 1}));
    EXPECT_EQ(fromDayNumber(85102), (RevolutionaryDate{233, 13, 5, 5}));
    EXPECT_EQ(fromDayNumber(85103), (RevolutionaryDate{234, 1, 1, 1}));
    EXPECT_EQ(fromDayNumber(85155), (RevolutionaryDate{234, 2, 23, 3}));
}

TEST(RepublicanDate, IsTheEpochsAtTheEpochAndBefore) {
    const test::ScopedTimeZone zone{"Europe/Paris"};
    const RevolutionaryDate first{1, 1, 1, 1};
    const Instant epoch = local({1792, 9, 22, 0, 0, 0});
    EXPECT_EQ(fromGregorian(epoch), first);
    EXPECT_EQ(fromGregorian(epoch - 1us), first);
    EXPECT_EQ(fromGregorian(epoch - 24h), first);
    EXPECT_EQ(fromGregorian(epoch - 48h), first);
    EXPECT_EQ(fromGregorian(local({1, 1, 1, 0, 0, 0})), first);
    EXPECT_EQ(fromGregorian(Instant::min()), first);
    EXPECT_EQ(fromGregorian(epoch + 24h - 1us), first);
    EXPECT_EQ(fromGregorian(epoch + 24h), (RevolutionaryDate{1, 1, 2, 2}));
}

TEST(RepublicanDate, EndsAYearOf365DaysWithTheFifthComplementaryDay) {
    EXPECT_EQ(fromDayNumber(364), (RevolutionaryDate{1, 13, 5, 5}));
    EXPECT_EQ(fromDayNumber(365), (RevolutionaryDate{2, 1, 1, 1}));
    EXPECT_EQ(fromDayNumber(729), (RevolutionaryDate{2, 13, 5, 5}));
    EXPECT_EQ(fromDayNumber(730), (RevolutionaryDate{3, 1, 1, 1}));
}

TEST(RepublicanDate, HasASixthComplementaryDayInYears3And7ButNot4) {
    EXPECT_EQ(fromDayNumber(1095), (RevolutionaryDate{3, 13, 6, 6}));
    EXPECT_EQ(fromDayNumber(1096 + 364), (RevolutionaryDate{4, 13, 5, 5}));
    EXPECT_EQ(fromDayNumber(1096 + 365), (RevolutionaryDate{5, 1, 1, 1}));
    EXPECT_EQ(fromDayNumber(1461 + 1095), (RevolutionaryDate{7, 13, 6, 6}));
    EXPECT_EQ(fromDayNumber(1461 + 1096), (RevolutionaryDate{8, 1, 1, 1}));
}

TEST(RepublicanDate, RepeatsTheDecadeEveryTenDays) {
    for (std::int64_t month = 0; month < 12; ++month) {
        EXPECT_EQ(fromDayNumber(month * 30 + 29), (RevolutionaryDate{1, month + 1, 30, 10}));
        EXPECT_EQ(fromDayNumber(month * 30 + 10), (RevolutionaryDate{1, month + 1, 11, 1}));
        EXPECT_EQ(fromDayNumber(month * 30 + 20), (RevolutionaryDate{1, month + 1, 21, 1}));
        EXPECT_EQ(fromDayNumber(month * 30 + 19), (RevolutionaryDate{1, month + 1, 20, 10}));
    }
}

TEST(RepublicanDate, ChangesAtLocalMidnightAndNotAtUtcs) {
    for (const char* zoneName : {"Asia/Tokyo", "America/Los_Angeles"}) {
        const test::ScopedTimeZone zone{zoneName};
        const Instant midnight = local({2025, 11, 15, 0, 0, 0});
        EXPECT_EQ(fromGregorian(midnight - 1us), (RevolutionaryDate{234, 2, 22, 2})) << zoneName;
        EXPECT_EQ(fromGregorian(midnight), (RevolutionaryDate{234, 2, 23, 3})) << zoneName;
        // UTC's midnight falls within the local day.
        const Instant utcMidnight = std::chrono::ceil<std::chrono::days>(midnight);
        ASSERT_NE(utcMidnight, midnight);
        EXPECT_EQ(fromGregorian(utcMidnight - 1us), fromGregorian(utcMidnight)) << zoneName;
    }
}

TEST(RepublicanDate, IsTheSameAsCountedYearByYear) {
    for (std::int64_t days = -400; days < 240'000; ++days)
        ASSERT_EQ(fromDayNumber(days), countedYearByYear(days)) << days;
    for (std::int64_t days = 240'000; days < 40'000'000; days += 99'991)
        ASSERT_EQ(fromDayNumber(days), countedYearByYear(days)) << days;
}

TEST(RepublicanDate, IsTheSameAsCountedYearByYearAroundFarYears) {
    // The year-by-year count is begun late: whole cycles of four years are 1461 days.
    for (const std::int64_t cycles : {std::int64_t{25'000}, std::int64_t{75'000'000}, greatest / 1461 - 1}) {
        for (std::int64_t day = 0; day < 1461; ++day) {
            RevolutionaryDate expected = countedYearByYear(day);
            expected.year += cycles * 4;
            ASSERT_EQ(fromDayNumber(cycles * 1461 + day), expected) << cycles << " " << day;
        }
    }
    EXPECT_EQ(fromDayNumber(least), (RevolutionaryDate{1, 1, 1, 1}));
    EXPECT_GT(fromDayNumber(greatest).year, 25'000'000'000'000'000);
    // The farthest instant that there is.
    const test::ScopedTimeZone zone{"UTC"};
    EXPECT_EQ(fromGregorian(Instant::max()).year, 292'449);
}

TEST(RepublicanDate, FollowsAChangeOfZoneAtOnce) {
    test::ScopedTimeZone zone{"UTC"};
    const Instant evening = local({2025, 11, 15, 20, 0, 0});
    EXPECT_EQ(fromGregorian(evening), (RevolutionaryDate{234, 2, 23, 3}));
    zone.set("Asia/Tokyo");
    EXPECT_EQ(fromGregorian(evening), (RevolutionaryDate{234, 2, 24, 4}));
    EXPECT_EQ(toDecimalTime(evening), (DecimalTime{2, 8, 33}));
    zone.set("America/New_York");
    EXPECT_EQ(fromGregorian(evening), (RevolutionaryDate{234, 2, 23, 3}));
    EXPECT_EQ(toDecimalTime(evening), (DecimalTime{6, 25, 0}));
}

TEST(DecimalTime, FollowsTheWorkedValues) {
    struct Row {
        std::int64_t hour, minute, second;
        DecimalTime time;
    };
    for (const char* zoneName : {"Europe/Paris", "UTC", "Asia/Kathmandu"}) {
        const test::ScopedTimeZone zone{zoneName};
        for (const Row& row : {Row{0, 0, 0, {0, 0, 0}}, Row{0, 0, 1, {0, 0, 1}}, Row{0, 0, 6, {0, 0, 6}},
                               Row{0, 0, 7, {0, 0, 8}}, Row{0, 0, 59, {0, 0, 68}}, Row{0, 1, 0, {0, 0, 69}},
                               Row{1, 0, 0, {0, 41, 66}}, Row{2, 24, 0, {1, 0, 0}}, Row{6, 0, 0, {2, 50, 0}},
                               Row{12, 0, 0, {5, 0, 0}}, Row{14, 24, 0, {6, 0, 0}}, Row{18, 0, 0, {7, 50, 0}},
                               Row{23, 59, 59, {9, 99, 98}}}) {
            const Instant at = local({2025, 11, 15, row.hour, row.minute, row.second});
            EXPECT_EQ(toDecimalTime(at), row.time) << zoneName << " " << row.hour << ":" << row.minute;
        }
    }
}

TEST(DecimalTime, NeverReachesTheLastDecimalSecondNorTheTenthHour) {
    const test::ScopedTimeZone zone{"Europe/Paris"};
    const Instant midnight = local({2025, 11, 15, 0, 0, 0});
    DecimalTime previous{0, 0, -1};
    for (std::int64_t second = 0; second < 86'400; ++second) {
        const DecimalTime time = toDecimalTime(midnight + std::chrono::seconds{second});
        const std::int64_t sum = time.hours * 10'000 + time.minutes * 100 + time.seconds;
        ASSERT_EQ(sum, second * 125 / 108) << second;
        ASSERT_NE(time, previous) << second;
        previous = time;
    }
    EXPECT_EQ(previous, (DecimalTime{9, 99, 98}));
    EXPECT_EQ(toDecimalTime(midnight + 86'399s + 999'999us), (DecimalTime{9, 99, 98}));
    EXPECT_EQ(toDecimalTime(midnight + 86'400s), (DecimalTime{0, 0, 0}));
}

TEST(DecimalTime, FollowsTheWallClockOnDaysOfUnusualLength) {
    const test::ScopedTimeZone zone{"Europe/Paris"};
    EXPECT_EQ(toDecimalTime(local({2025, 3, 30, 3, 0, 0})), (DecimalTime{1, 25, 0}));
    EXPECT_EQ(toDecimalTime(local({2025, 3, 30, 3, 0, 0}) - 1s), (DecimalTime{0, 83, 32}));
    EXPECT_EQ(toDecimalTime(local({2025, 10, 26, 3, 0, 0})), (DecimalTime{1, 25, 0}));
    EXPECT_EQ(toDecimalTime(local({2025, 10, 26, 2, 0, 0})),
              toDecimalTime(local({2025, 10, 26, 2, 0, 0}) + 1h));
    EXPECT_EQ(toDecimalTime(local({2025, 10, 26, 12, 0, 0})), (DecimalTime{5, 0, 0}));
}

TEST(DecimalTime, DropsFractions) {
    const test::ScopedTimeZone zone{"Europe/Paris"};
    for (const std::int64_t year : {1800, 1969, 1970, 2025}) { // both sides of the Unix epoch
        const Instant midnight = local({year, 1, 1, 0, 0, 0});
        EXPECT_EQ(toDecimalTime(midnight + 999'999us), (DecimalTime{0, 0, 0})) << year;
        EXPECT_EQ(toDecimalTime(midnight - 1us), (DecimalTime{9, 99, 98})) << year;
        EXPECT_EQ(toDecimalTime(midnight + 1s), (DecimalTime{0, 0, 1})) << year;
    }
}

TEST(DecimalTime, ReadsALeapSecondAsTheSecondBeforeIt) {
    if (!std::filesystem::exists("/usr/share/zoneinfo/right/UTC")) {
        ASSERT_TRUE(test::mayLack("zones that count leap seconds"));
        GTEST_SKIP();
    }
    const test::ScopedTimeZone zone{"right/UTC"}; // which shows 23:59:60 here
    const Instant afterLeap = local({2017, 1, 1, 0, 0, 0});
    ASSERT_EQ(afterLeap.time_since_epoch(), 1'483'228'827s);
    EXPECT_EQ(toDecimalTime(afterLeap - 1s), (DecimalTime{9, 99, 98}));
    EXPECT_EQ(fromGregorian(afterLeap - 1s), fromGregorian(afterLeap - 2s));
    EXPECT_EQ(toDecimalTime(afterLeap), (DecimalTime{0, 0, 0}));
}

TEST(RomanNumerals, FollowTheTable) {
    EXPECT_EQ(toRoman(1), "I");
    EXPECT_EQ(toRoman(2), "II");
    EXPECT_EQ(toRoman(4), "IV");
    EXPECT_EQ(toRoman(9), "IX");
    EXPECT_EQ(toRoman(14), "XIV");
    EXPECT_EQ(toRoman(40), "XL");
    EXPECT_EQ(toRoman(90), "XC");
    EXPECT_EQ(toRoman(234), "CCXXXIV");
    EXPECT_EQ(toRoman(400), "CD");
    EXPECT_EQ(toRoman(900), "CM");
    EXPECT_EQ(toRoman(1888), "MDCCCLXXXVIII");
    EXPECT_EQ(toRoman(3999), "MMMCMXCIX");
    EXPECT_EQ(toRoman(4000), "MMMM");
    EXPECT_EQ(toRoman(12'000), "MMMMMMMMMMMM");
}

TEST(RomanNumerals, AreEmptyForZeroAndBelow) {
    EXPECT_EQ(toRoman(0), "");
    EXPECT_EQ(toRoman(-1), "");
    EXPECT_EQ(toRoman(-5), "");
    EXPECT_EQ(toRoman(least), "");
}

TEST(RomanNumerals, ReadBackAsTheSameNumber) {
    const auto valueOf = [](char symbol) -> std::int64_t {
        switch (symbol) {
        case 'I':
            return 1;
        case 'V':
            return 5;
        case 'X':
            return 10;
        case 'L':
            return 50;
        case 'C':
            return 100;
        case 'D':
            return 500;
        default:
            return symbol == 'M' ? 1000 : 0;
        }
    };
    for (std::int64_t number = 1; number <= 4200; ++number) {
        const std::string text = toRoman(number);
        std::int64_t sum = 0;
        for (std::size_t index = 0; index < text.size(); ++index) {
            const bool isTakenOff =
                index + 1 < text.size() && valueOf(text[index]) < valueOf(text[index + 1]);
            sum += isTakenOff ? -valueOf(text[index]) : valueOf(text[index]);
        }
        ASSERT_EQ(sum, number) << text;
    }
}

TEST(CalendarTables, HoldTheNames) {
    EXPECT_THAT(monthNames, testing::ElementsAre("Vendémiaire", "Brumaire", "Frimaire", "Nivôse", "Pluviôse",
                                                 "Ventôse", "Germinal", "Floréal", "Prairial", "Messidor",
                                                 "Thermidor", "Fructidor", "Sansculottides"));
    EXPECT_THAT(monthMeanings, testing::ElementsAre(
                                   "Month of Grape Harvest", "Month of Fog", "Month of Frost",
                                   "Month of Snow", "Month of Rain", "Month of Wind", "Month of Germination",
                                   "Month of Flowers", "Month of Meadows", "Month of Harvest",
                                   "Month of Heat", "Month of Fruit", "Complementary Days"));
    EXPECT_THAT(monthEmojis, testing::ElementsAre("🍇", "🌫️", "🥶", "☃️", "🌧️", "💨", "🌱", "🌸",
                                                  "🌾", "🌻", "☀️", "🍎", "🎉"));
    EXPECT_THAT(dayNames, testing::ElementsAre("Primidi", "Duodi", "Tridi", "Quartidi", "Quintidi", "Sextidi",
                                               "Septidi", "Octidi", "Nonidi", "Décadi"));
    EXPECT_THAT(sansculottidesNames,
                testing::ElementsAre("La Fête de la Vertu", "La Fête du Génie", "La Fête du Travail",
                                     "La Fête de l'Opinion", "La Fête des Récompenses",
                                     "La Fête de la Révolution"));
}

TEST(CalendarTables, UsePrecomposedLettersAndTheEmojiSelector) {
    EXPECT_EQ(monthName(4), "Niv\u00F4se");
    EXPECT_EQ(dayName(10), "D\u00E9cadi");
    EXPECT_EQ(monthEmoji(2), "\U0001F32B\uFE0F");
    EXPECT_EQ(monthEmoji(4), "\u2603\uFE0F");
    EXPECT_EQ(monthEmoji(5), "\U0001F327\uFE0F");
    EXPECT_EQ(monthEmoji(11), "\u2600\uFE0F");
    for (const std::int64_t month : {1, 3, 6, 7, 8, 9, 10, 12, 13})
        EXPECT_EQ(monthEmoji(month).size(), 4u) << month; // one scalar and no selector
}

TEST(CalendarTables, AreReadByNumbersFrom1) {
    EXPECT_EQ(monthName(1), "Vendémiaire");
    EXPECT_EQ(monthName(13), "Sansculottides");
    EXPECT_EQ(monthMeaning(1), "Month of Grape Harvest");
    EXPECT_EQ(monthMeaning(13), "Complementary Days");
    EXPECT_EQ(dayName(1), "Primidi");
    EXPECT_EQ(sansculottidesName(1), "La Fête de la Vertu");
    EXPECT_EQ(sansculottidesName(6), "La Fête de la Révolution");
}

TEST(CalendarTablesDeathTest, StopOnANumberOutsideTheTable) {
    for (const std::int64_t month : {least, std::int64_t{0}, std::int64_t{14}, greatest}) {
        EXPECT_DEATH(monthName(month), "a month outside 1 to 13");
        EXPECT_DEATH(monthMeaning(month), "a month outside 1 to 13");
        EXPECT_DEATH(monthEmoji(month), "a month outside 1 to 13");
    }
    for (const std::int64_t day : {least, std::int64_t{0}, std::int64_t{11}, greatest})
        EXPECT_DEATH(dayName(day), "décade outside 1 to 10");
    for (const std::int64_t day : {least, std::int64_t{0}, std::int64_t{7}, greatest})
        EXPECT_DEATH(sansculottidesName(day), "complementary day outside 1 to 6");
}

} // namespace
} // namespace tambrelle
