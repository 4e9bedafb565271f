#include "content/DailyItems.h"
#include "content/HistoricalData.h"
#include "core/RevolutionaryCalendar.h"
#include "tests/support/LiveState.h"

#include <chrono>

namespace tambrelle {
namespace {

using namespace std::chrono;

class CalendarManagerNavigationTest : public test::LiveState {};

TEST_F(CalendarManagerNavigationTest, StepsByDays) {
    launch();
    calendar->goToPreviousDay();
    EXPECT_EQ(calendar->dayOffset(), -1);
    EXPECT_EQ(calendar->currentDate(), (RevolutionaryDate{234, 2, 22, 2}));
    EXPECT_EQ(calendar->viewedGregorianDate(), noon - 24h);
    calendar->goToNextDay();
    calendar->goToNextDay();
    EXPECT_EQ(calendar->dayOffset(), 1);
    EXPECT_EQ(calendar->currentDate(), (RevolutionaryDate{234, 2, 24, 4}));
    EXPECT_EQ(calendar->todayDate(), (RevolutionaryDate{234, 2, 23, 3})) << "today stays";
    EXPECT_EQ(calendar->dailyItem()->imageName(), DailyItems::item(calendar->currentDate())->imageName());
    calendar->goToToday();
    EXPECT_EQ(calendar->dayOffset(), 0);
    EXPECT_EQ(calendar->currentDate(), calendar->todayDate());
}

TEST_F(CalendarManagerNavigationTest, AStepAnnouncesTheOffsetAndTheFourValuesOfTheDay) {
    launch();
    const test::Announcements announcements(*calendar);
    calendar->goToNextDay();
    EXPECT_EQ(announcements.count, 5);
    calendar->goToToday();
    EXPECT_EQ(announcements.count, 10);
}

TEST_F(CalendarManagerNavigationTest, TodayWhenOnTodayAnnouncesNothing) {
    launch();
    const test::Announcements announcements(*calendar);
    platform.clock.advance(1h);
    calendar->goToToday();
    EXPECT_EQ(announcements.count, 0);
    EXPECT_EQ(calendar->viewedGregorianDate(), noon) << "nothing is refreshed either";
}

TEST_F(CalendarManagerNavigationTest, TakesAFreshInstant) {
    launch();
    platform.clock.advance(90min);
    calendar->goToNextDay();
    EXPECT_EQ(calendar->viewedGregorianDate(), noon + 90min + 24h);
    EXPECT_EQ(calendar->currentTime(), (DecimalTime{5, 0, 0})) << "the time is the tick's";
}

TEST_F(CalendarManagerNavigationTest, AddsCalendarDaysAndNotStepsOfSeconds) {
    const Instant beforeChange = test::local({2025, 10, 25, 12, 0, 0});
    launchAt(beforeChange);
    calendar->goToNextDay();
    EXPECT_EQ(calendar->viewedGregorianDate(), test::local({2025, 10, 26, 12, 0, 0}));
    EXPECT_EQ(calendar->viewedGregorianDate() - beforeChange, 25h);
}

TEST_F(CalendarManagerNavigationTest, WalksThroughAWholeYearWithoutADoubleOrAMissingDay) {
    launchAt(test::local({2025, 9, 24, 2, 30, 0}));
    for (int step = 0; step < 365; ++step) {
        const std::int64_t month = step / 30 + 1;
        const std::int64_t day = step % 30 + 1;
        ASSERT_EQ(calendar->currentDate().month, month) << "step " << step;
        ASSERT_EQ(calendar->currentDate().day, day);
        ASSERT_EQ(calendar->dailyItem().has_value(), month != 13);
        ASSERT_EQ(calendar->viewedEvents(), HistoricalData::events(calendar->currentDate()));
        calendar->goToNextDay();
    }
    EXPECT_EQ(calendar->currentDate(), (RevolutionaryDate{235, 1, 1, 1}));
}

TEST_F(CalendarManagerNavigationTest, ADayBeyondTheCalendarShowsThePresentInstant) {
    const Instant end = Instant::max() - 1h;
    launchAt(end);
    calendar->goToNextDay();
    EXPECT_EQ(calendar->dayOffset(), 1);
    EXPECT_EQ(calendar->viewedGregorianDate(), end);
    EXPECT_EQ(calendar->currentDate(), calendar->todayDate());
}

TEST_F(CalendarManagerNavigationTest, TextsShowTodayInTheBarAndTheViewedDayWhenShared) {
    launch();
    calendar->goToPreviousDay();
    EXPECT_EQ(calendar->menuBarText(), QStringLiteral("🌫️ 23 Brumaire · Tridi · 5:00"));
    EXPECT_EQ(calendar->shareableText(), QStringLiteral("🌫️ 22 Brumaire an CCXXXIV · 5:00 décimal"));
}

} // namespace
} // namespace tambrelle
