#include "content/HistoricalData.h"
#include "core/RevolutionaryCalendar.h"
#include "tests/support/LiveState.h"

#include <chrono>
#include <vector>

namespace tambrelle {
namespace {

using namespace std::chrono;

class CalendarManagerTickTest : public test::LiveState {
protected:
    const Instant lastSecond = test::local({2025, 11, 15, 23, 59, 59});
    const Instant midnight = test::local({2025, 11, 16, 0, 0, 0});
    const RevolutionaryDate dayBefore{234, 2, 23, 3};
    const RevolutionaryDate dayAfter{234, 2, 24, 4};
};

TEST_F(CalendarManagerTickTest, RunsWithinTheTimersCallAsOneGroupOfChanges) {
    const CalendarManager& manager = launch();
    int groups = 0;
    QObject::connect(&manager, &CalendarManager::groupDidChange, [&] {
        ++groups;
        EXPECT_FALSE(manager.isInGroup());
        EXPECT_EQ(manager.todayDate(), dayAfter);
        EXPECT_EQ(manager.currentDate(), dayAfter);
        EXPECT_EQ(manager.currentTime(), RevolutionaryCalendar::toDecimalTime(noon + 24h));
    });
    platform.clock.advance(24h);
    platform.timer.fire();
    EXPECT_EQ(groups, 1) << "without another turn of the event loop";
}

TEST_F(CalendarManagerTickTest, IsDroppedWhenTheManagerIsGone) {
    launch();
    platform.timer.fire();
    const int reads = platform.clock.reads();
    end();
    test::runQueued();
    EXPECT_EQ(platform.clock.reads(), reads);
    platform.timer.fire();
    test::runQueued();
    EXPECT_EQ(platform.clock.reads(), reads);
}

TEST_F(CalendarManagerTickTest, ReadsTheClockOnceAndAnnouncesOnce) {
    launch();
    const test::Announcements announcements(*calendar);
    const int reads = platform.clock.reads();
    tickAt(noon + 1s);
    EXPECT_EQ(platform.clock.reads(), reads + 1);
    EXPECT_EQ(announcements.count, 1);
}

TEST_F(CalendarManagerTickTest, AnnouncesTheTimeAlsoWhenItIsTheSame) {
    launch();
    const test::Announcements announcements(*calendar);
    tickAt(noon);
    tickAt(noon);
    EXPECT_EQ(announcements.count, 2);
    EXPECT_EQ(calendar->currentTime(), (DecimalTime{5, 0, 0}));
}

TEST_F(CalendarManagerTickTest, AnnouncesBeforeItAssigns) {
    launch();
    std::vector<DecimalTime> seen;
    QObject context;
    QObject::connect(calendar, &ObservableObject::objectWillChange, &context,
                     [&] { seen.push_back(calendar->currentTime()); });
    tickAt(noon + 4min);
    EXPECT_EQ(seen, (std::vector{DecimalTime{5, 0, 0}}));
}

TEST_F(CalendarManagerTickTest, HoldsWhatTheTwoConversionsGive) {
    launch();
    for (const auto step : {1s, 864s, 86400s * 31, 86400s * 200}) {
        const Instant at = noon + step + 17ms;
        tickAt(at);
        EXPECT_EQ(calendar->todayDate(), RevolutionaryCalendar::fromGregorian(at));
        EXPECT_EQ(calendar->currentTime(), RevolutionaryCalendar::toDecimalTime(at));
    }
}

TEST_F(CalendarManagerTickTest, LooksNothingUpOnAnOrdinaryTick) {
    launch();
    platform.notifications.answer(true);
    const int removals = platform.notifications.removals;
    const Instant viewed = calendar->viewedGregorianDate();
    tickAt(noon + 10min);
    EXPECT_EQ(platform.notifications.removals, removals);
    EXPECT_EQ(calendar->viewedGregorianDate(), viewed);
}

TEST_F(CalendarManagerTickTest, NewDayMovesTodayAndTheViewedDayAndReschedules) {
    launchAt(lastSecond);
    platform.notifications.answer(true);
    const int removals = platform.notifications.removals;
    const test::Announcements announcements(*calendar);
    tickAt(midnight);
    EXPECT_EQ(calendar->todayDate(), dayAfter);
    EXPECT_EQ(calendar->currentDate(), dayAfter);
    EXPECT_EQ(calendar->viewedGregorianDate(), midnight);
    EXPECT_EQ(calendar->dailyItem()->frenchName, "Orange");
    EXPECT_EQ(calendar->viewedEvents(), HistoricalData::events(dayAfter));
    EXPECT_EQ(calendar->currentTime(), (DecimalTime{0, 0, 0}));
    EXPECT_EQ(platform.notifications.removals, removals + 1);
    EXPECT_EQ(platform.notifications.pending().size(), 14U) << "08:00 of the new day is still ahead";
    EXPECT_EQ(announcements.count, 1 + 4 + 1) << "today, the four of the viewed day, the time";
}

TEST_F(CalendarManagerTickTest, CrossingMidnightChimesOnce) {
    launchAt(lastSecond);
    tickAt(midnight);
    EXPECT_EQ(chimes(), 1U);
    tickAt(midnight + 864ms);
    EXPECT_EQ(chimes(), 1U);
}

TEST_F(CalendarManagerTickTest, DoesItsStepsInOrder) {
    struct Moment {
        RevolutionaryDate today;
        Instant viewedInstant;
        RevolutionaryDate viewed;
        int removals;
        std::size_t chimes;
        QString slogan;
        DecimalTime time;
    };
    platform.random.addIndex(1);
    platform.random.addIndex(2);
    const Instant before = test::local({2025, 11, 15, 23, 50, 0});
    launchAt(before);
    const DecimalTime timeBefore = calendar->currentTime();
    std::vector<Moment> moments;
    QObject context;
    QObject::connect(calendar, &ObservableObject::objectWillChange, &context, [&] {
        moments.push_back({calendar->todayDate(), calendar->viewedGregorianDate(), calendar->currentDate(),
                           platform.notifications.removals, chimes(), calendar->currentSlogan(),
                           calendar->currentTime()});
    });
    tickAt(midnight);

    ASSERT_EQ(moments.size(), 7U);
    EXPECT_EQ(moments[0].today, dayBefore);
    EXPECT_EQ(moments[1].today, dayAfter);
    EXPECT_EQ(moments[1].viewedInstant, before);
    EXPECT_EQ(moments[2].viewedInstant, midnight);
    EXPECT_EQ(moments[2].viewed, dayBefore);
    EXPECT_EQ(moments[3].viewed, dayAfter);
    EXPECT_EQ(moments[4].removals, 0) << "the viewed day is complete before the notifications";
    EXPECT_EQ(moments[4].chimes, 0U);
    EXPECT_EQ(moments[5].removals, 1);
    EXPECT_EQ(moments[5].chimes, 1U) << "the chime comes before the slogan";
    EXPECT_EQ(moments[5].slogan, QStringLiteral("Vivre libre ou mourir"));
    EXPECT_EQ(moments[6].slogan, QStringLiteral("La République une et indivisible"));
    EXPECT_EQ(moments[6].time, timeBefore) << "the time comes last";
    EXPECT_EQ(calendar->currentTime(), (DecimalTime{0, 0, 0}));
}

TEST_F(CalendarManagerTickTest, NewDayLeavesAnotherViewedDayAlone) {
    launchAt(lastSecond);
    calendar->goToNextDay();
    const Instant viewed = calendar->viewedGregorianDate();
    const test::Announcements announcements(*calendar);
    tickAt(midnight);
    EXPECT_EQ(announcements.count, 2) << "today and the time";
    EXPECT_EQ(calendar->todayDate(), dayAfter);
    EXPECT_EQ(calendar->dayOffset(), 1);
    EXPECT_EQ(calendar->viewedGregorianDate(), viewed);
    EXPECT_EQ(calendar->currentDate(), dayAfter) << "the viewed day is now today";
    EXPECT_EQ(platform.notifications.removals, 1);

    calendar->goToToday();
    EXPECT_EQ(calendar->dayOffset(), 0);
    EXPECT_EQ(calendar->currentDate(), dayAfter);
    EXPECT_EQ(calendar->viewedGregorianDate(), midnight);
}

TEST_F(CalendarManagerTickTest, SameDayOfAnotherYearIsNoChangeOfDay) {
    launch();
    tickAt(test::local({2026, 11, 15, 12, 0, 0}));
    EXPECT_EQ(RevolutionaryCalendar::fromGregorian(platform.clock.now()), (RevolutionaryDate{235, 2, 23, 3}));
    EXPECT_EQ(calendar->todayDate(), dayBefore) << "the year is not refreshed";
    EXPECT_EQ(platform.notifications.removals, 0);
    tickAt(test::local({2026, 11, 16, 12, 0, 0}));
    EXPECT_EQ(calendar->todayDate(), (RevolutionaryDate{235, 2, 24, 4}));
}

TEST_F(CalendarManagerTickTest, ClockSetBackToTheDayBeforeIsAChangeOfDay) {
    launchAt(midnight);
    tickAt(lastSecond);
    EXPECT_EQ(calendar->todayDate(), dayBefore);
    EXPECT_EQ(calendar->currentDate(), dayBefore);
    EXPECT_EQ(platform.notifications.removals, 1);
    EXPECT_EQ(chimes(), 1U) << "from hour 0 to hour 9";
}

TEST_F(CalendarManagerTickTest, ChangeOfZoneCountsAtTheNextTick) {
    launchAt(lastSecond);
    const test::ScopedTimeZone tokyo("Asia/Tokyo");
    tickAt(lastSecond + 1s);
    EXPECT_EQ(calendar->todayDate(), dayAfter);
    EXPECT_EQ(calendar->currentTime().hours, 3) << "08:00 in the morning";
}

TEST_F(CalendarManagerTickTest, ChimesAtEveryChangeOfDecimalHour) {
    launchAt(test::local({2025, 11, 15, 0, 0, 0}));
    std::size_t expected = 0;
    for (int hour = 1; hour <= 9; ++hour) {
        const Instant change = test::local({2025, 11, 15, 0, 0, 0}) + hour * 8640s;
        tickAt(change - 1s);
        EXPECT_EQ(chimes(), expected) << "a second before hour " << hour;
        tickAt(change);
        EXPECT_EQ(chimes(), ++expected) << "hour " << hour;
        tickAt(change + 1s);
        EXPECT_EQ(chimes(), expected);
    }
}

TEST_F(CalendarManagerTickTest, ChimesOnceWhereverATickLandsInANewHour) {
    launch();
    tickAt(noon + 3h);
    EXPECT_EQ(chimes(), 1U) << "hour 6, at 6:25";
    tickAt(noon + 11h);
    EXPECT_EQ(chimes(), 2U) << "hours 7 and 8 were slept through";
    tickAt(noon);
    EXPECT_EQ(chimes(), 3U) << "the clock was set back";
}

TEST_F(CalendarManagerTickTest, WithChimesOffNothingSoundsAndTheHourCounts) {
    launchAt(noon - 3h);
    sound->setSoundEnabled(false);
    tickAt(noon - 1h);
    tickAt(noon);
    EXPECT_EQ(chimes(), 0U);
    EXPECT_TRUE(platform.resources.lookedUp.isEmpty());
    sound->setSoundEnabled(true);
    tickAt(noon + 1s);
    EXPECT_EQ(chimes(), 0U) << "hour 5 has been seen";
    tickAt(noon + 2h + 24min);
    EXPECT_EQ(chimes(), 1U);
}

TEST_F(CalendarManagerTickTest, ChimeAtDecimalNoonFollowsTheSwitch) {
    launchAt(noon - 1s);
    tickAt(noon);
    EXPECT_EQ(chimes(), 1U);
    sound->setSoundEnabled(false);
    tickAt(noon - 1s);
    tickAt(noon);
    EXPECT_EQ(chimes(), 1U);
}

} // namespace
} // namespace tambrelle
