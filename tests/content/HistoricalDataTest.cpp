#include "content/HistoricalData.h"
#include "core/GraphemePrefix.h"
#include "core/GregorianCalendar.h"
#include "tests/support/LocalInstant.h"
#include "tests/support/ScopedTimeZone.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <set>
#include <utility>

namespace tambrelle {
namespace {

using namespace std::chrono_literals;
using HistoricalData::allEvents;
using HistoricalData::daysSinceLastGuillotine;
using HistoricalData::Event;
using HistoricalData::events;
using test::local;

std::vector<Event> eventsOn(std::int64_t month, std::int64_t day, std::int64_t year = 234) {
    return events({year, month, day, (day - 1) % 10 + 1});
}

TEST(HistoricalEvents, ProclaimTheRepublicOnTheFirstDay) {
    for (const std::int64_t year : {1, 2, 234, 4000}) {
        const auto found = eventsOn(1, 1, year);
        ASSERT_EQ(found.size(), 1u);
        EXPECT_EQ(found[0].title, "Republic Proclaimed");
        EXPECT_EQ(found[0].year, 1);
        EXPECT_EQ(found[0].description, "The First French Republic is proclaimed, beginning Year I");
        EXPECT_EQ(found[0].emoji, "🇫🇷");
        EXPECT_EQ(found[0].revolutionaryDate, (HistoricalData::MonthAndDay{1, 1}));
    }
}

TEST(HistoricalEvents, HaveNoYearOnTheComplementaryDays) {
    for (std::int64_t day = 1; day <= 6; ++day) {
        const auto found = eventsOn(13, day);
        ASSERT_EQ(found.size(), 1u) << day;
        EXPECT_FALSE(found[0].year.has_value());
    }
    EXPECT_EQ(eventsOn(13, 6, 4)[0].title, "Fête de la Révolution"); // year 4 has no such day
    EXPECT_TRUE(eventsOn(13, 7).empty());
}

TEST(HistoricalEvents, AreEmptyOnMostDays) {
    EXPECT_TRUE(eventsOn(1, 2).empty());
    EXPECT_TRUE(eventsOn(0, 0).empty());
    EXPECT_TRUE(eventsOn(14, 1).empty());
    EXPECT_TRUE(eventsOn(-1, -1).empty());
}

TEST(HistoricalEvents, AreFoundToTheLastRow) {
    const auto found = eventsOn(2, 20);
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found[0].title, "Girondins Executed");
    EXPECT_EQ(found[0], allEvents.back());
}

TEST(HistoricalEvents, RecurWhateverTheYear) {
    const auto found = eventsOn(11, 10, 230);
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found[0].title, "Robespierre Executed");
    EXPECT_EQ(found[0].year, 2);
}

TEST(HistoricalEvents, FallOnDaysOfTheirOwn) {
    std::set<std::pair<std::int64_t, std::int64_t>> days;
    for (const Event& event : allEvents) {
        days.insert({event.revolutionaryDate.month, event.revolutionaryDate.day});
        const auto found = eventsOn(event.revolutionaryDate.month, event.revolutionaryDate.day);
        ASSERT_EQ(found.size(), 1u) << event.title;
        EXPECT_EQ(found[0], event);
    }
    EXPECT_EQ(days.size(), 38u);
}

TEST(HistoricalEvents, KeepTheTablesOwnOrder) {
    std::vector<std::int64_t> months;
    for (std::size_t row = 33; row < allEvents.size(); ++row)
        months.push_back(allEvents[row].revolutionaryDate.month);
    EXPECT_THAT(months, testing::ElementsAre(1, 1, 4, 10, 2));
    EXPECT_EQ(
        std::count_if(allEvents.begin(), allEvents.end(), [](const Event& event) { return !event.year; }), 6);
}

TEST(HistoricalEvents, HaveOneEmojiEachJoinedSequencesIncluded) {
    EXPECT_EQ(allEvents[7].emoji, "\U0001F468\u200D\u2696\uFE0F");
    EXPECT_EQ(allEvents[9].emoji, "\u26D3\uFE0F\u200D\U0001F4A5");
    for (const Event& event : allEvents) {
        EXPECT_FALSE(event.emoji.empty());
        EXPECT_EQ(graphemePrefix(event.emoji, 1), event.emoji) << event.title;
    }
}

// The instant is fixed at the process's first call, which these tests make in Paris; ctest gives each a
// process, and run together they agree on the zone.
class GuillotineCounter : public testing::Test {
protected:
    GuillotineCounter() { HistoricalData::lastGuillotineExecution(); }

    test::ScopedTimeZone zone_{"Europe/Paris"};
};

TEST_F(GuillotineCounter, StartsAtLocalMidnight) {
    EXPECT_EQ(HistoricalData::lastGuillotineExecution(), local({1977, 9, 10, 0, 0, 0}));
}

TEST_F(GuillotineCounter, CountsWholeDays) {
    EXPECT_EQ(daysSinceLastGuillotine(local({1977, 9, 10, 0, 0, 0})), 0);
    EXPECT_EQ(daysSinceLastGuillotine(local({1977, 9, 10, 23, 59, 0})), 0);
    EXPECT_EQ(daysSinceLastGuillotine(local({1977, 9, 11, 0, 0, 0}) - 1us), 0);
    EXPECT_EQ(daysSinceLastGuillotine(local({1977, 9, 11, 0, 0, 0})), 1);
    EXPECT_EQ(daysSinceLastGuillotine(local({2025, 11, 15, 0, 0, 0})), 17'598);
    EXPECT_EQ(daysSinceLastGuillotine(local({2025, 11, 15, 23, 59, 59})), 17'598);
    EXPECT_EQ(daysSinceLastGuillotine(local({1977, 9, 9, 12, 0, 0})), 0);
    EXPECT_EQ(daysSinceLastGuillotine(local({1977, 9, 8, 23, 0, 0})), -1);
}

TEST_F(GuillotineCounter, StaysPutWhenTheZoneMoves) {
    const Instant fixed = HistoricalData::lastGuillotineExecution();
    zone_.set("America/New_York");
    EXPECT_EQ(HistoricalData::lastGuillotineExecution(), fixed);
    // Midnight in Paris was 18:00 in New York, and so the count there turns at 18:00.
    EXPECT_EQ(daysSinceLastGuillotine(local({1977, 9, 10, 18, 0, 0}) - 1us), 0);
    EXPECT_EQ(daysSinceLastGuillotine(local({1977, 9, 10, 18, 0, 0})), 1);
}

TEST_F(GuillotineCounter, CountsUpToThePresentMoment) {
    const auto before =
        daysSinceLastGuillotine(std::chrono::floor<Instant::duration>(std::chrono::system_clock::now()));
    const auto counted = daysSinceLastGuillotine();
    const auto after =
        daysSinceLastGuillotine(std::chrono::floor<Instant::duration>(std::chrono::system_clock::now()));
    EXPECT_LE(before, counted);
    EXPECT_LE(counted, after);
}

} // namespace
} // namespace tambrelle
