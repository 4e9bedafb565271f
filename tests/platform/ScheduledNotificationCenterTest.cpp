#include "platform/freedesktop/notifications/ScheduledNotificationCenter.h"

#include "app/NotificationManager.h"
#include "core/GregorianCalendar.h"
#include "tests/fakes/FakeClock.h"
#include "tests/fakes/FakeUserDefaults.h"
#include "tests/platform/FakeNotificationService.h"
#include "tests/platform/FakeWakeUp.h"
#include "tests/support/ScopedTimeZone.h"

#include <gtest/gtest.h>

#include <memory>

using namespace tambrelle;
using namespace std::chrono_literals;

namespace {

CalendarTrigger trigger(std::int64_t month, std::int64_t day, std::int64_t hour, std::int64_t minute = 0) {
    return {.year = 2026, .month = month, .day = day, .hour = hour, .minute = minute};
}

/// The first instant at which the local wall clock shows this.
Instant at(std::int64_t month, std::int64_t day, std::int64_t hour, std::int64_t minute = 0) {
    return GregorianCalendar::instant({2026, month, day, hour, minute, 0}).value();
}

UserNotificationRequest request(const char* identifier, const CalendarTrigger& when) {
    return {.identifier = QString::fromLatin1(identifier),
            .title = QStringLiteral("title"),
            .body = QStringLiteral("body"),
            .trigger = when};
}

using Identifiers = std::vector<QString>;

class ScheduledNotificationCenterTest : public testing::Test {
protected:
    /// The clock shows a time, and the process gets to look at it.
    void setClock(Instant instant) {
        clock.set(instant);
        wakeUp.look();
    }

    test::ScopedTimeZone zone{"Europe/Paris"};
    fakes::FakeClock clock;
    fakes::FakeWakeUp wakeUp;
    fakes::FakeNotificationService service;
    ScheduledNotificationCenter center{clock, wakeUp, service};
};

struct Delegate : UserNotificationCenterDelegate {
    PresentationOptions willPresent(const UserNotificationRequest& /*request*/) override {
        meanwhile();
        return {.banner = true, .sound = true};
    }

    std::function<void()> meanwhile;
};

} // namespace

TEST_F(ScheduledNotificationCenterTest, WakesForTheRequestsMinuteAndThenNoMore) {
    clock.set(at(3, 7, 7));
    center.add(request("morning", trigger(3, 7, 8)));
    EXPECT_EQ(wakeUp.armed, at(3, 7, 8));
    setClock(at(3, 7, 8) - 1us);
    EXPECT_EQ(wakeUp.armed, at(3, 7, 8));
    setClock(at(3, 7, 8));
    EXPECT_EQ(service.identifiers(), Identifiers{"morning"});
    EXPECT_EQ(wakeUp.armed, std::nullopt);
}

TEST_F(ScheduledNotificationCenterTest, WakesForTheEarliestAndThenForTheNext) {
    clock.set(at(3, 7, 7));
    center.add(request("second", trigger(3, 8, 8)));
    center.add(request("first", trigger(3, 7, 8)));
    EXPECT_EQ(wakeUp.armed, at(3, 7, 8));
    setClock(at(3, 7, 8));
    EXPECT_EQ(wakeUp.armed, at(3, 8, 8));
    setClock(at(3, 8, 8, 1));
    EXPECT_EQ(service.identifiers(), (Identifiers{"first", "second"}));
}

TEST_F(ScheduledNotificationCenterTest, ArmsOnlyForAnEarlierInstant) {
    clock.set(at(3, 7, 7));
    center.add(request("second", trigger(3, 8, 8)));
    center.add(request("third", trigger(3, 9, 8)));
    EXPECT_EQ(wakeUp.arms, 1);
    center.add(request("first", trigger(3, 7, 8)));
    EXPECT_EQ(wakeUp.arms, 2);
    center.add(request("first", trigger(3, 7, 9)));
    EXPECT_EQ(wakeUp.armed, at(3, 7, 9));
    center.add(request("first", trigger(3, 7, 99)));
    EXPECT_EQ(wakeUp.armed, at(3, 8, 8));
}

TEST_F(ScheduledNotificationCenterTest, WakesForNothingThatWasRemoved) {
    clock.set(at(3, 7, 7));
    center.add(request("not due", trigger(3, 8, 8)));
    center.removeAllPending();
    EXPECT_EQ(wakeUp.armed, std::nullopt);
}

TEST_F(ScheduledNotificationCenterTest, IgnoresATimeThatNoClockShows) {
    clock.set(at(3, 7, 7));
    for (const auto& impossible :
         {trigger(3, 7, 99), trigger(3, 7, -1), trigger(3, 7, 8, 60), trigger(2, 30, 8)})
        center.add(request("impossible", impossible));
    EXPECT_TRUE(center.pending().empty());
    EXPECT_EQ(wakeUp.armed, std::nullopt);
}

TEST_F(ScheduledNotificationCenterTest, WaitsAgainAfterTheClockIsSetBack) {
    clock.set(at(3, 7, 7, 59));
    center.add(request("morning", trigger(3, 7, 8)));
    setClock(at(3, 7, 3));
    EXPECT_EQ(wakeUp.armed, at(3, 7, 8));
    EXPECT_TRUE(service.shown.empty());
    setClock(at(3, 7, 8));
    EXPECT_EQ(service.shown.size(), 1U);
}

TEST_F(ScheduledNotificationCenterTest, FollowsTheWallClockIntoAWesternZone) {
    clock.set(at(3, 7, 7, 59));
    center.add(request("morning", trigger(3, 7, 8)));
    const test::ScopedTimeZone there("Europe/London"); // it is 6:59 there
    clock.advance(1min);
    wakeUp.look();
    EXPECT_TRUE(service.shown.empty());
    EXPECT_EQ(wakeUp.armed, clock.now() + 1h);
    clock.advance(1h);
    wakeUp.look();
    EXPECT_EQ(service.shown.size(), 1U);
}

TEST_F(ScheduledNotificationCenterTest, LooksAtTheZoneOnlyOnceItMayHaveChanged) {
    clock.set(at(3, 7, 7, 59));
    clock.beginZoneGeneration();
    center.add(request("morning", trigger(3, 7, 8)));
    wakeUp.look();
    const test::ScopedTimeZone there("Europe/London"); // it is 6:59 there
    wakeUp.look();
    EXPECT_EQ(wakeUp.armed, clock.now() + 1min) << "the same zone, for all it knows";
    clock.beginZoneGeneration();
    wakeUp.look();
    EXPECT_EQ(wakeUp.armed, clock.now() + 1h + 1min);
}

TEST_F(ScheduledNotificationCenterTest, MakesUpForAMinuteThatTheClockSkips) {
    // On 29 March 2026 the clocks of Paris go from 2:00 to 3:00.
    clock.set(at(3, 29, 1, 59));
    center.add(request("skipped", trigger(3, 29, 2, 30)));
    EXPECT_EQ(wakeUp.armed, at(3, 29, 3));
    setClock(at(3, 29, 3));
    EXPECT_EQ(service.shown.size(), 1U);
}

TEST_F(ScheduledNotificationCenterTest, LetsTheDelegateScheduleAnew) {
    clock.set(at(3, 7, 7));
    Delegate delegate;
    delegate.meanwhile = [&] {
        center.removeAllPending();
        center.add(request("tomorrow", trigger(3, 8, 8)));
    };
    center.setDelegate(&delegate);
    center.add(request("morning", trigger(3, 7, 8)));
    setClock(at(3, 7, 8));
    EXPECT_EQ(service.identifiers(), Identifiers{"morning"});
    EXPECT_EQ(center.pending().size(), 1U);
    EXPECT_EQ(wakeUp.armed, at(3, 8, 8));
}

TEST_F(ScheduledNotificationCenterTest, DisarmsAtItsEnd) {
    clock.set(at(3, 7, 7));
    {
        ScheduledNotificationCenter passing{clock, wakeUp, service};
        passing.add(request("morning", trigger(3, 7, 8)));
        EXPECT_NE(wakeUp.armed, std::nullopt);
    }
    EXPECT_EQ(wakeUp.armed, std::nullopt);
}

namespace {

/// The centre under the manager that uses it, which replaces all requests at each change of day.
class MorningsTest : public ScheduledNotificationCenterTest {
protected:
    void startAt(Instant instant) {
        clock.set(instant);
        manager = std::make_unique<NotificationManager>(NotificationServices{clock, defaults, center});
        manager->start();
        service.answer();
    }

    fakes::FakeUserDefaults defaults;
    std::unique_ptr<NotificationManager> manager;
};

} // namespace

TEST_F(MorningsTest, ComeDayAfterDayWhileTheWindowSlides) {
    startAt(at(3, 7, 7));
    for (int day = 7; day < 27; ++day) {
        setClock(at(3, day, 8));
        setClock(at(3, day + 1, 0));
        manager->reschedule();
        EXPECT_EQ(center.pending().size(), 14U);
    }
    EXPECT_EQ(service.shown.size(), 20U);
}

TEST_F(MorningsTest, SleptThroughIntoANewDayAreShownOnceWhoeverNoticesFirst) {
    startAt(at(3, 7, 7));
    clock.set(at(3, 8, 6));
    manager->reschedule(); // the tick has seen the new day before any wake-up
    wakeUp.look();
    EXPECT_EQ(service.identifiers(), Identifiers{"daily-2026-3-7"});
    setClock(at(3, 8, 8));
    EXPECT_EQ(service.identifiers(), (Identifiers{"daily-2026-3-7", "daily-2026-3-8"}));
}

TEST_F(MorningsTest, SleptThroughPastTheNextMorningAreShownOnce) {
    startAt(at(3, 7, 9));
    clock.set(at(3, 8, 9, 30));
    wakeUp.look();
    manager->reschedule();
    wakeUp.look();
    EXPECT_EQ(service.identifiers(), Identifiers{"daily-2026-3-8"});
    EXPECT_EQ(center.pending().size(), 13U);
}

TEST_F(MorningsTest, StayAwayWhenSwitchedOff) {
    startAt(at(3, 7, 7));
    manager->setEnabled(false);
    setClock(at(3, 7, 9));
    EXPECT_TRUE(service.shown.empty());
    EXPECT_EQ(wakeUp.armed, std::nullopt);
}

TEST_F(MorningsTest, FollowANewTime) {
    startAt(at(3, 7, 7));
    manager->setHour(9);
    manager->setMinute(15);
    setClock(at(3, 7, 8));
    EXPECT_TRUE(service.shown.empty());
    setClock(at(3, 7, 9, 15));
    EXPECT_EQ(service.identifiers(), Identifiers{"daily-2026-3-7"});
}
