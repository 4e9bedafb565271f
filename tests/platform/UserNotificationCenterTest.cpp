#include "platform/UserNotificationCenter.h"

#include "core/GregorianCalendar.h"
#include "platform/freedesktop/notifications/ScheduledNotificationCenter.h"
#include "tests/fakes/FakeClock.h"
#include "tests/fakes/FakeUserNotificationCenter.h"
#include "tests/platform/FakeNotificationService.h"
#include "tests/platform/FakeWakeUp.h"
#include "tests/support/LocalInstant.h"
#include "tests/support/Printers.h"
#include "tests/support/ScopedTimeZone.h"

#include <gtest/gtest.h>

// What every notification centre keeps to: the desktop's own and the one that stands in for it in the tests.

namespace tambrelle {
namespace {

using namespace std::chrono_literals;
using Identifiers = std::vector<QString>;

constexpr PresentationOptions bannerAndSound{.banner = true, .sound = true};

CalendarTrigger on(std::int64_t month, std::int64_t day, std::int64_t hour, std::int64_t minute = 0) {
    return {.year = 2026, .month = month, .day = day, .hour = hour, .minute = minute};
}

/// The first instant at which the local wall clock shows this.
Instant clockAt(std::int64_t month, std::int64_t day, std::int64_t hour, std::int64_t minute = 0) {
    return test::local({2026, month, day, hour, minute, 0});
}

UserNotificationRequest morningOf(const char* identifier, const CalendarTrigger& when) {
    return {.identifier = QString::fromLatin1(identifier),
            .title = QStringLiteral("title"),
            .body = QStringLiteral("body"),
            .trigger = when};
}

/// The desktop's centre, between a clock and a service that a test holds in its hands.
struct Scheduled {
    void look() const { wakeUp.look(); }
    void answer() { service.answer(); }
    [[nodiscard]] Identifiers shown() const { return service.identifiers(); }
    [[nodiscard]] PresentationOptions lastOptions() const { return service.lastOptions; }

    fakes::FakeClock clock;
    fakes::FakeWakeUp wakeUp;
    fakes::FakeNotificationService service;
    ScheduledNotificationCenter center{clock, wakeUp, service};
};

struct StandIn {
    void look() { center.deliverDue(); }
    void answer() { center.answer(true); }
    [[nodiscard]] Identifiers shown() const {
        Identifiers all;
        for (const auto& delivery : center.delivered)
            all.push_back(delivery.request.identifier);
        return all;
    }
    [[nodiscard]] PresentationOptions lastOptions() const { return center.delivered.back().options; }

    fakes::FakeClock clock;
    fakes::FakeUserNotificationCenter center{clock};
};

struct AskedDelegate final : UserNotificationCenterDelegate {
    PresentationOptions willPresent(const UserNotificationRequest& request) override {
        asked.push_back(request.identifier);
        if (meanwhile)
            meanwhile();
        return options;
    }

    PresentationOptions options = bannerAndSound;
    Identifiers asked;
    std::function<void()> meanwhile;
};

template <class Kind>
class UserNotificationCenterTest : public ::testing::Test, protected Kind {
protected:
    UserNotificationCenterTest() { this->clock.set(clockAt(3, 7, 7)); }

    /// The clock shows a time, and the centre gets to look at it.
    void setClock(Instant instant) {
        this->clock.set(instant);
        this->look();
    }
    void add(const char* identifier, const CalendarTrigger& when) {
        this->center.add(morningOf(identifier, when));
    }
    [[nodiscard]] std::size_t pending() const { return this->center.pending().size(); }

    test::ScopedTimeZone zone{"Europe/Paris"};
};

struct KindName {
    template <class Kind>
    static std::string GetName(int /*index*/) {
        return std::is_same_v<Kind, Scheduled> ? "Scheduled" : "StandIn";
    }
};

using Kinds = ::testing::Types<Scheduled, StandIn>;
TYPED_TEST_SUITE(UserNotificationCenterTest, Kinds, KindName);

TYPED_TEST(UserNotificationCenterTest, ShowsARequestWhenItsMinuteComesAndNotBefore) {
    this->add("morning", on(3, 7, 8));
    this->setClock(clockAt(3, 7, 8) - 1us);
    EXPECT_EQ(this->shown(), Identifiers{});
    ASSERT_EQ(this->pending(), 1U);
    EXPECT_EQ(this->center.pending().front(), morningOf("morning", on(3, 7, 8)));
    this->setClock(clockAt(3, 7, 8));
    EXPECT_EQ(this->shown(), Identifiers{"morning"});
    EXPECT_EQ(this->pending(), 0U);
}

TYPED_TEST(UserNotificationCenterTest, ShowsWhatWasSleptThroughOnce) {
    this->add("today", on(3, 7, 8));
    this->add("tomorrow", on(3, 8, 8));
    this->setClock(clockAt(3, 7, 9, 30));
    this->look();
    EXPECT_EQ(this->shown(), Identifiers{"today"});
    EXPECT_EQ(this->pending(), 1U);
}

TYPED_TEST(UserNotificationCenterTest, ShowsOnlyTheLastOfSeveralThatWereSleptThrough) {
    AskedDelegate delegate;
    this->center.setDelegate(&delegate);
    this->add("second", on(3, 8, 8));
    this->add("third", on(3, 9, 8));
    this->add("first", on(3, 7, 8));
    this->add("next", on(3, 10, 8));
    this->setClock(clockAt(3, 9, 9));
    EXPECT_EQ(this->shown(), Identifiers{"third"});
    EXPECT_EQ(delegate.asked, Identifiers{"third"});
    EXPECT_EQ(this->pending(), 1U);
}

TYPED_TEST(UserNotificationCenterTest, ShowsWhatIsDueBeforeItIsRemoved) {
    this->add("due", on(3, 7, 8));
    this->add("not due", on(3, 8, 8));
    this->clock.set(clockAt(3, 7, 9));
    this->center.removeAllPending();
    EXPECT_EQ(this->shown(), Identifiers{"due"});
    EXPECT_EQ(this->pending(), 0U);
}

TYPED_TEST(UserNotificationCenterTest, ReplacesARequestOfTheSameIdentifier) {
    this->add("morning", on(3, 7, 8));
    this->add("morning", on(3, 7, 9));
    ASSERT_EQ(this->pending(), 1U);
    this->setClock(clockAt(3, 7, 8, 30));
    EXPECT_EQ(this->shown(), Identifiers{});
    this->setClock(clockAt(3, 7, 9));
    EXPECT_EQ(this->shown(), Identifiers{"morning"});
}

TYPED_TEST(UserNotificationCenterTest, AnImpossibleTimeOnlyTakesAwayTheOneItReplaces) {
    this->add("morning", on(3, 7, 8));
    this->add("morning", on(3, 7, 99));
    for (const auto& impossible : {on(3, 7, 99), on(3, 7, -1), on(3, 7, 8, 60), on(2, 30, 8)})
        this->add("impossible", impossible);
    EXPECT_EQ(this->pending(), 0U);
    this->setClock(clockAt(12, 31, 23));
    EXPECT_EQ(this->shown(), Identifiers{});
}

TYPED_TEST(UserNotificationCenterTest, WaitsAgainAndRepeatsNothingWhenTheClockIsSetBack) {
    this->add("morning", on(3, 7, 8));
    this->setClock(clockAt(3, 7, 3));
    EXPECT_EQ(this->shown(), Identifiers{});
    this->setClock(clockAt(3, 7, 8));
    this->setClock(clockAt(3, 7, 7));
    this->setClock(clockAt(3, 7, 8));
    EXPECT_EQ(this->shown(), Identifiers{"morning"});
}

TYPED_TEST(UserNotificationCenterTest, FollowsTheWallClockIntoAnotherZone) {
    this->add("morning", on(3, 7, 8));
    this->zone.set("Europe/London"); // it is 6:00 there
    this->setClock(this->clock.now() + 1h);
    EXPECT_EQ(this->shown(), Identifiers{});
    this->zone.set("Europe/Helsinki"); // 9:00
    this->look();
    EXPECT_EQ(this->shown(), Identifiers{"morning"});
}

TYPED_TEST(UserNotificationCenterTest, MakesUpForAMinuteThatTheClockSkips) {
    // On 29 March 2026 the clocks of Paris go from 2:00 to 3:00.
    this->add("skipped", on(3, 29, 2, 30));
    this->setClock(clockAt(3, 29, 1, 59));
    EXPECT_EQ(this->shown(), Identifiers{});
    EXPECT_EQ(this->pending(), 1U);
    this->setClock(clockAt(3, 29, 3));
    EXPECT_EQ(this->shown(), Identifiers{"skipped"});
}

TYPED_TEST(UserNotificationCenterTest, ShowsOnceInAMinuteThatTheClockRepeats) {
    // On 25 October 2026 the clocks of Paris go from 3:00 back to 2:00.
    this->add("repeated", on(10, 25, 2, 30));
    this->setClock(clockAt(10, 25, 2, 30));
    this->setClock(clockAt(10, 25, 2, 30) + 1h);
    EXPECT_EQ(this->shown(), Identifiers{"repeated"});
}

TYPED_TEST(UserNotificationCenterTest, AsksTheDelegateHowToShow) {
    AskedDelegate delegate;
    delegate.options = {.banner = true, .sound = false};
    this->center.setDelegate(&delegate);
    this->add("morning", on(3, 7, 8));
    this->setClock(clockAt(3, 7, 8));
    EXPECT_EQ(delegate.asked, Identifiers{"morning"});
    ASSERT_EQ(this->shown(), Identifiers{"morning"});
    EXPECT_EQ(this->lastOptions(), delegate.options);
}

TYPED_TEST(UserNotificationCenterTest, ShowsNothingWhenTheDelegateWantsNothing) {
    AskedDelegate delegate;
    delegate.options = {.banner = false, .sound = true}; // there is no sound without a banner
    this->center.setDelegate(&delegate);
    this->add("morning", on(3, 7, 8));
    this->setClock(clockAt(3, 7, 8));
    EXPECT_EQ(delegate.asked, Identifiers{"morning"});
    EXPECT_EQ(this->shown(), Identifiers{});
    EXPECT_EQ(this->pending(), 0U);
}

TYPED_TEST(UserNotificationCenterTest, ShowsWithBannerAndSoundWithoutADelegate) {
    AskedDelegate gone;
    this->center.setDelegate(&gone);
    this->center.setDelegate(nullptr);
    this->add("morning", on(3, 7, 8));
    this->setClock(clockAt(3, 7, 8));
    EXPECT_EQ(gone.asked, Identifiers{});
    ASSERT_EQ(this->shown(), Identifiers{"morning"});
    EXPECT_EQ(this->lastOptions(), bannerAndSound);
}

TYPED_TEST(UserNotificationCenterTest, LetsTheDelegateScheduleAnew) {
    AskedDelegate delegate;
    delegate.meanwhile = [&] {
        this->center.removeAllPending();
        this->add("tomorrow", on(3, 9, 8));
    };
    this->center.setDelegate(&delegate);
    this->add("first", on(3, 7, 8));
    this->add("second", on(3, 8, 8));
    this->setClock(clockAt(3, 8, 9));
    EXPECT_EQ(this->shown(), Identifiers{"second"});
    ASSERT_EQ(this->pending(), 1U);
    EXPECT_EQ(this->center.pending().front().identifier, "tomorrow");
}

TYPED_TEST(UserNotificationCenterTest, GrantsOnceWhenAnAnswerComesAndNotBefore) {
    int grants = 0;
    for (int request = 0; request < 2; ++request)
        this->center.requestAuthorization([&grants](bool granted) { grants += granted ? 1 : 0; });
    EXPECT_EQ(grants, 0);
    this->answer();
    EXPECT_EQ(grants, 2);
    this->answer();
    EXPECT_EQ(grants, 2);
}

TYPED_TEST(UserNotificationCenterTest, KeepsItsTimesWhetherPermissionHasBeenAskedForOrNot) {
    this->add("morning", on(3, 7, 8));
    this->setClock(clockAt(3, 7, 8));
    EXPECT_EQ(this->shown(), Identifiers{"morning"}) << "whether it can be seen is the service's affair";
}

} // namespace
} // namespace tambrelle
