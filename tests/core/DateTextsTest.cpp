#include "core/DateTexts.h"
#include "core/GregorianCalendar.h"
#include "core/RevolutionaryCalendar.h"
#include "tests/support/ScopedTimeZone.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace tambrelle {
namespace {

constexpr RevolutionaryDate brumaire{234, 2, 23, 3};
constexpr DecimalTime noon{5, 0, 0};

TEST(DateTexts, ReadAsInTheWorkedExample) {
    const test::ScopedTimeZone zone{"Europe/Paris"};
    const auto instant = GregorianCalendar::instant({2025, 11, 15, 12, 0, 0});
    ASSERT_TRUE(instant.has_value());
    const auto today = RevolutionaryCalendar::fromGregorian(*instant);
    const auto time = RevolutionaryCalendar::toDecimalTime(*instant);
    EXPECT_EQ(today.formatted(), "23 Brumaire an CCXXXIV");
    EXPECT_EQ(menuBarText(today, time, MenuBarFormat::dateAndTime), "🌫️ 23 Brumaire · Tridi · 5:00");
    EXPECT_EQ(menuBarText(today, time, MenuBarFormat::date), "🌫️ 23 Brum.");
    EXPECT_EQ(menuBarText(today, time, MenuBarFormat::decimalTime), "🌫️ 5:00");
    EXPECT_EQ(menuBarText(today, time, MenuBarFormat::dayNumber), "🌫️ 23");
    EXPECT_EQ(shareableText(today, time), "🌫️ 23 Brumaire an CCXXXIV · 5:00 décimal");
}

TEST(DateTexts, UseTheEmojiPresentationAndTheMiddleDot) {
    EXPECT_EQ(menuBarText(brumaire, noon, MenuBarFormat::dateAndTime),
              "\U0001F32B\uFE0F 23 Brumaire \u00B7 Tridi \u00B7 5:00");
}

TEST(DateTexts, ReadOnAComplementaryDay) {
    constexpr RevolutionaryDate day{233, 13, 4, 4};
    EXPECT_EQ(menuBarText(day, {9, 99, 98}, MenuBarFormat::dateAndTime),
              "🎉 4 Sansculottides · Quartidi · 9:99");
    EXPECT_EQ(menuBarText(day, noon, MenuBarFormat::date), "🎉 4 Sans.");
    EXPECT_EQ(day.formatted(), "4 Sansculottides an CCXXXIII");
}

TEST(DateTexts, PadTheMinutesButNotTheHours) {
    EXPECT_EQ(timeText({7, 5, 99}), "7:05");
    EXPECT_EQ(timeText({0, 41, 66}), "0:41");
    EXPECT_EQ(timeText({0, 0, 0}), "0:00");
    EXPECT_EQ(timeText({9, 99, 98}), "9:99");
    EXPECT_EQ(timeText({1, 10, 0}), "1:10");
}

TEST(DateTexts, AbbreviateEachMonthToFourCharacters) {
    std::vector<std::string> abbreviations;
    for (std::int64_t month = 1; month <= 13; ++month) {
        const std::string text = menuBarText({1, month, 1, 1}, noon, MenuBarFormat::date);
        const auto start = text.find(" 1 ") + 3;
        abbreviations.push_back(text.substr(start));
    }
    EXPECT_THAT(abbreviations,
                testing::ElementsAre("Vend.", "Brum.", "Frim.", "Nivô.", "Pluv.", "Vent.", "Germ.", "Flor.",
                                     "Prai.", "Mess.", "Ther.", "Fruc.", "Sans."));
}

TEST(DateTexts, WriteTheYearInRomanNumerals) {
    EXPECT_EQ((RevolutionaryDate{1, 1, 1, 1}.formatted()), "1 Vendémiaire an I");
    EXPECT_EQ((RevolutionaryDate{4, 8, 30, 10}.formatted()), "30 Floréal an IV");
    EXPECT_EQ((RevolutionaryDate{4000, 12, 10, 10}.formatted()), "10 Fructidor an MMMM");
}

TEST(DateTexts, ShareTheViewedDayWithThePresentTime) {
    EXPECT_EQ(shareableText({3, 13, 6, 6}, {7, 5, 12}), "🎉 6 Sansculottides an III · 7:05 décimal");
    EXPECT_EQ(shareableText({234, 1, 1, 1}, {7, 5, 12}), "🍇 1 Vendémiaire an CCXXXIV · 7:05 décimal");
}

TEST(DateTexts, ChangeWithTheFormatOnlyAfterTheEmoji) {
    for (std::int64_t month = 1; month <= 13; ++month) {
        const std::string start = std::string{RevolutionaryCalendar::monthEmoji(month)} + " ";
        for (const MenuBarFormat format : allCases<MenuBarFormat>())
            EXPECT_THAT(menuBarText({1, month, 2, 2}, noon, format), testing::StartsWith(start));
    }
}

TEST(DateTextsDeathTest, StopOnADateOutsideTheCalendar) {
    for (const std::int64_t month :
         {std::numeric_limits<std::int64_t>::min(), std::int64_t{-1}, std::int64_t{0}, std::int64_t{14},
          std::numeric_limits<std::int64_t>::max()}) {
        const RevolutionaryDate date{1, month, 1, 1};
        EXPECT_DEATH(static_cast<void>(date.formatted()), "month");
        EXPECT_DEATH(shareableText(date, noon), "month");
        for (const MenuBarFormat format : allCases<MenuBarFormat>())
            EXPECT_DEATH(menuBarText(date, noon, format), "month");
    }
    for (const std::int64_t decadeDay : {-1, 0, 11})
        EXPECT_DEATH(menuBarText({1, 1, 1, decadeDay}, noon, MenuBarFormat::dateAndTime), "décade");
    EXPECT_DEATH(menuBarText(brumaire, noon, static_cast<MenuBarFormat>(9)), "enumeration");
}

} // namespace
} // namespace tambrelle
