#include "ui/panel/PanelSnapshot.h"

#include "tests/support/Printers.h"
#include "tests/support/ScopedTimeZone.h"
#include "tests/ui/StateOnFakes.h"

#include <gtest/gtest.h>

namespace tambrelle {
namespace {

class PanelSnapshotTest : public ::testing::Test {
protected:
    PanelSnapshot at(const CivilComponents& now) {
        state.emplace(now);
        return again();
    }
    PanelSnapshot again() {
        return panelSnapshot(state->manager, state->sound, {state->platform.clock.now(), QLocale("en_US")});
    }

    test::ScopedTimeZone zone{"Europe/Paris"};
    std::optional<test::StateOnFakes> state;
};

TEST_F(PanelSnapshotTest, SaysTheDayInFull) {
    const PanelSnapshot snapshot = at({2025, 11, 15, 12, 0, 0});
    EXPECT_EQ(snapshot.theme, AppTheme::light);
    EXPECT_TRUE(snapshot.onToday);
    EXPECT_EQ(snapshot.header.monthName, "BRUMAIRE");
    EXPECT_EQ(snapshot.header.monthMeaning, "\"Month of Fog\"");
    EXPECT_EQ(snapshot.header.monthEmoji, "🌫️");
    EXPECT_EQ(snapshot.header.formattedDate, "23 Brumaire an CCXXXIV");
    EXPECT_EQ(snapshot.header.dayName, "Tridi");
    EXPECT_EQ(snapshot.header.placeInDecade, "3rd of décade");
    EXPECT_EQ(snapshot.header.civilDate, "Nov 15, 2025");
    EXPECT_EQ(snapshot.time.decimalTime, "5:00:00");
    EXPECT_EQ(snapshot.time.standardTime, "12:00 PM");
    ASSERT_TRUE(snapshot.dailyItem);
    EXPECT_EQ(snapshot.dailyItem->frenchName, "Garance");
    EXPECT_EQ(snapshot.dailyItem->caption, "Madder • Plant");
    EXPECT_EQ(snapshot.dailyItem->imageName, "day_053_garance");
    EXPECT_TRUE(snapshot.onThisDay.events.empty());
    EXPECT_EQ(snapshot.guillotine.daysSince, "17,598");
    EXPECT_EQ(snapshot.footer.slogan, "Liberté, Égalité, Fraternité");
    EXPECT_TRUE(snapshot.footer.soundEnabled);
}

TEST_F(PanelSnapshotTest, CapitalsKeepTheirAccents) {
    EXPECT_EQ(at({2025, 10, 1, 12, 0, 0}).header.monthName, "VENDÉMIAIRE");
    EXPECT_EQ(at({2026, 1, 5, 12, 0, 0}).header.monthName, "NIVÔSE");
}

TEST_F(PanelSnapshotTest, WritesTheYearOfAnEventInRomanNumerals) {
    const PanelSnapshot snapshot = at({2025, 7, 29, 7, 5, 0});
    ASSERT_EQ(snapshot.onThisDay.events.size(), 1U);
    const EventContent& event = snapshot.onThisDay.events.front();
    EXPECT_EQ(event.title, "9 Thermidor");
    EXPECT_EQ(event.year, "(An II)");
    EXPECT_EQ(event.description, "Robespierre arrested - the Terror begins to end");
    EXPECT_EQ(event.emoji, "⚡");
}

TEST(OnThisDayContentTest, HasTheFirstThreeEventsAtMostInTheirOrder) {
    const auto titled = [](std::string_view title) {
        return HistoricalData::Event{
            .revolutionaryDate = {2, 23}, .year = 2, .title = title, .description = "Words", .emoji = "⚡"};
    };
    std::vector<HistoricalData::Event> events;
    QStringList wanted;
    for (const char* title : {"First", "Second", "Third", "Fourth", "Fifth"}) {
        QStringList titles;
        for (const EventContent& event : onThisDayContent(events).events)
            titles.append(event.title);
        EXPECT_EQ(titles, wanted) << "of " << events.size();
        events.push_back(titled(title));
        if (wanted.size() < 3)
            wanted.append(title);
    }
}

TEST_F(PanelSnapshotTest, AFestivalHasNoYear) {
    const PanelSnapshot snapshot = at({2025, 9, 19, 12, 0, 0});
    EXPECT_FALSE(snapshot.dailyItem);
    ASSERT_EQ(snapshot.onThisDay.events.size(), 1U);
    EXPECT_EQ(snapshot.onThisDay.events.front().title, "Fête de la Vertu");
    EXPECT_TRUE(snapshot.onThisDay.events.front().year.isEmpty());
}

TEST_F(PanelSnapshotTest, PadsMinutesAndSecondsOfTheDecimalTimeAlone) {
    EXPECT_EQ(at({2025, 11, 15, 0, 0, 1}).time.decimalTime, "0:00:01");
    EXPECT_EQ(at({2025, 11, 15, 23, 59, 59}).time.decimalTime, "9:99:98");
}

TEST_F(PanelSnapshotTest, TheStandardTimeIsTheLiveOneOnEveryDay) {
    at({2025, 11, 15, 12, 0, 0});
    state->manager.goToPreviousDay();
    state->platform.clock.advance(std::chrono::hours(3));
    const PanelSnapshot snapshot = again();
    EXPECT_FALSE(snapshot.onToday);
    EXPECT_EQ(snapshot.header.formattedDate, "22 Brumaire an CCXXXIV");
    EXPECT_EQ(snapshot.header.civilDate, "Nov 14, 2025");
    EXPECT_EQ(snapshot.time.standardTime, "3:00 PM");
    EXPECT_EQ(snapshot.time.decimalTime, "5:00:00") << "that of the last tick";
}

TEST_F(PanelSnapshotTest, EqualStatesGiveEqualSnapshots) {
    const PanelSnapshot first = at({2025, 11, 15, 12, 0, 0});
    EXPECT_EQ(again(), first);
    state->sound.setSoundEnabled(false);
    EXPECT_NE(again(), first);
}

TEST(OrdinalTest, EndsAsInEnglishUpToTen) {
    const QStringList expected{"1st", "2nd", "3rd", "4th", "5th", "6th", "7th", "8th", "9th", "10th"};
    for (int number = 1; number <= expected.size(); ++number)
        EXPECT_EQ(ordinal(number), expected[number - 1]);
    for (const int number : {0, 11, 12, 13, 21, 22, 23})
        EXPECT_TRUE(ordinal(number).endsWith("th"));
}

} // namespace
} // namespace tambrelle
