#include "app/NotificationManager.h"

#include "app/PreferenceKeys.h"
#include "core/RevolutionaryDate.h"
#include "tests/support/LiveState.h"

#include <chrono>
#include <limits>
#include <memory>
#include <set>
#include <vector>

namespace tambrelle {
namespace {

using namespace std::chrono;
using Write = fakes::FakeUserDefaults::Write;

constexpr auto least = std::numeric_limits<std::int64_t>::min();
constexpr auto greatest = std::numeric_limits<std::int64_t>::max();

class NotificationManagerTest : public ::testing::Test {
protected:
    NotificationManagerTest() { platform.clock.set(test::local({2026, 3, 7, 7, 30, 0})); }

    NotificationManager& launch() {
        manager = std::make_unique<NotificationManager>(
            NotificationServices{platform.clock, platform.defaults, platform.notifications});
        return *manager;
    }
    NotificationManager& launchGranted() {
        launch().start();
        platform.notifications.answer(true);
        platform.notifications.removals = 0;
        platform.notifications.additions = 0;
        platform.defaults.writes.clear();
        return *manager;
    }
    void configure(const QVariant& enabled, const QVariant& hour, const QVariant& minute) {
        platform.defaults.values = {{PreferenceKeys::notificationsConfigured, true},
                                    {PreferenceKeys::notificationsEnabled, enabled},
                                    {PreferenceKeys::notificationHour, hour},
                                    {PreferenceKeys::notificationMinute, minute}};
    }

    [[nodiscard]] std::vector<UserNotificationRequest> pending() const {
        return platform.notifications.pending();
    }
    [[nodiscard]] QStringList identifiers() const {
        QStringList list;
        for (const auto& request : pending())
            list.append(request.identifier);
        return list;
    }

    test::ScopedTimeZone zone{"Europe/Paris"};
    fakes::FakePlatform platform;
    std::unique_ptr<NotificationManager> manager;
};

TEST_F(NotificationManagerTest, FirstRunIsOnAtEightAndStoresFourKeys) {
    launch();
    EXPECT_TRUE(manager->enabled());
    EXPECT_EQ(manager->hour(), 8);
    EXPECT_EQ(manager->minute(), 0);
    const std::vector<Write> expected{{PreferenceKeys::notificationsEnabled, true},
                                      {PreferenceKeys::notificationHour, 8LL},
                                      {PreferenceKeys::notificationMinute, 0LL},
                                      {PreferenceKeys::notificationsConfigured, true}};
    EXPECT_EQ(platform.defaults.writes, expected);
    EXPECT_EQ(platform.notifications.removals, 0) << "these writes do not reschedule";
    EXPECT_EQ(platform.clock.reads(), 0);
}

TEST_F(NotificationManagerTest, FirstRunOverrulesWhatIsStored) {
    platform.defaults.values = {{PreferenceKeys::notificationsEnabled, false},
                                {PreferenceKeys::notificationHour, 22LL}};
    launch();
    EXPECT_TRUE(manager->enabled());
    EXPECT_EQ(manager->hour(), 8);
}

TEST_F(NotificationManagerTest, LaterRunReadsWhatIsStoredAndWritesNothing) {
    configure(false, 6LL, 45LL);
    launch();
    EXPECT_FALSE(manager->enabled());
    EXPECT_EQ(manager->hour(), 6);
    EXPECT_EQ(manager->minute(), 45);
    EXPECT_TRUE(platform.defaults.writes.empty());
}

TEST_F(NotificationManagerTest, MissingValuesOfALaterRunAreFalseAndZero) {
    platform.defaults.values = {{PreferenceKeys::notificationsConfigured, true}};
    launch();
    EXPECT_FALSE(manager->enabled());
    EXPECT_EQ(manager->hour(), 0);
    EXPECT_EQ(manager->minute(), 0);
    EXPECT_TRUE(platform.defaults.writes.empty());
}

TEST_F(NotificationManagerTest, SchedulesWhenPermissionIsGranted) {
    launch().start();
    EXPECT_EQ(platform.notifications.authorizationRequests, 1);
    EXPECT_TRUE(pending().empty());
    platform.notifications.answer(true);
    EXPECT_EQ(pending().size(), 14U) << "it is before eight";
}

TEST_F(NotificationManagerTest, ThirteenWhenTodaysTimeHasPassed) {
    platform.clock.set(test::local({2026, 3, 7, 8, 30, 0}));
    launchGranted();
    EXPECT_EQ(pending().size(), 13U);
    EXPECT_EQ(identifiers().first(), QStringLiteral("daily-2026-3-8"));
}

TEST_F(NotificationManagerTest, TodaysTimeCountsOnlyWhileItIsStrictlyAhead) {
    platform.clock.set(test::local({2026, 3, 7, 8, 0, 0}));
    launchGranted();
    EXPECT_EQ(pending().size(), 13U);
    platform.clock.set(test::local({2026, 3, 7, 8, 0, 0}) - 1us);
    manager->reschedule();
    EXPECT_EQ(pending().size(), 14U);
}

TEST_F(NotificationManagerTest, RefusalSchedulesNothingAndIsNotReported) {
    launch().start();
    platform.notifications.answer(false);
    EXPECT_EQ(platform.notifications.removals, 0);
    EXPECT_TRUE(pending().empty());
    manager->setHour(9);
    EXPECT_EQ(pending().size(), 14U) << "later requests are added, and the desktop does not show them";
}

TEST_F(NotificationManagerTest, PermissionThatComesAfterItsEndDoesNothing) {
    launch().start();
    manager.reset();
    EXPECT_EQ(platform.notifications.delegate, nullptr);
    platform.notifications.answer(true);
    EXPECT_EQ(platform.notifications.removals, 0);
}

TEST_F(NotificationManagerTest, RequestsFollowTheDays) {
    launchGranted();
    const QStringList expected{QStringLiteral("daily-2026-3-7"),  QStringLiteral("daily-2026-3-8"),
                               QStringLiteral("daily-2026-3-9"),  QStringLiteral("daily-2026-3-10"),
                               QStringLiteral("daily-2026-3-11"), QStringLiteral("daily-2026-3-12"),
                               QStringLiteral("daily-2026-3-13"), QStringLiteral("daily-2026-3-14"),
                               QStringLiteral("daily-2026-3-15"), QStringLiteral("daily-2026-3-16"),
                               QStringLiteral("daily-2026-3-17"), QStringLiteral("daily-2026-3-18"),
                               QStringLiteral("daily-2026-3-19"), QStringLiteral("daily-2026-3-20")};
    EXPECT_EQ(identifiers(), expected);
    EXPECT_EQ(pending().front().trigger, (CalendarTrigger{2026, 3, 7, 8, 0}));
    EXPECT_EQ(pending().back().trigger, (CalendarTrigger{2026, 3, 20, 8, 0}));
}

TEST_F(NotificationManagerTest, WindowCrossesTheYearsEnd) {
    platform.clock.set(test::local({2026, 12, 25, 12, 0, 0}));
    launchGranted();
    EXPECT_EQ(identifiers().last(), QStringLiteral("daily-2027-1-7"));
    EXPECT_TRUE(identifiers().contains(QStringLiteral("daily-2027-1-5")));
}

TEST_F(NotificationManagerTest, TitleAndBodyAreThatDays) {
    platform.clock.set(test::local({2025, 11, 14, 9, 0, 0}));
    launchGranted();
    EXPECT_EQ(pending().front().title, QStringLiteral("23 Brumaire an CCXXXIV"));
    EXPECT_EQ(pending().front().body, morningNotificationBody(RevolutionaryDate{234, 2, 23, 3}));
    EXPECT_TRUE(pending().front().body.contains(QStringLiteral(" Aujourd'hui : ")));
}

TEST_F(NotificationManagerTest, ReadsTheClockOnceAReschedule) {
    launchGranted();
    const int reads = platform.clock.reads();
    manager->setEnabled(false);
    const int whenOff = platform.clock.reads() - reads;
    manager->setEnabled(true);
    // The centre reads it once at each removal.
    EXPECT_EQ(whenOff, 1);
    EXPECT_EQ(platform.clock.reads() - reads, whenOff + 2);
}

TEST_F(NotificationManagerTest, OffRemovesEveryRequest) {
    launchGranted().setEnabled(false);
    EXPECT_TRUE(pending().empty());
    EXPECT_EQ(platform.notifications.removals, 1);
    EXPECT_EQ(platform.notifications.additions, 0);
    manager->setEnabled(true);
    EXPECT_EQ(pending().size(), 14U);
}

TEST_F(NotificationManagerTest, HourAndThenMinuteRescheduleTwice) {
    launchGranted();
    manager->setHour(21);
    manager->setMinute(45);
    EXPECT_EQ(platform.notifications.removals, 2);
    EXPECT_EQ(platform.notifications.additions, 28);
    ASSERT_EQ(pending().size(), 14U) << "the second set replaces the first";
    for (const auto& request : pending()) {
        EXPECT_EQ(request.trigger.hour, 21);
        EXPECT_EQ(request.trigger.minute, 45);
    }
}

TEST_F(NotificationManagerTest, SettingTheTimeToTheCurrentMinuteSkipsToday) {
    platform.clock.set(test::local({2026, 3, 7, 15, 42, 30}));
    launchGranted();
    manager->setHour(15);
    manager->setMinute(42);
    EXPECT_EQ(identifiers().first(), QStringLiteral("daily-2026-3-8"));
    manager->setMinute(43);
    EXPECT_EQ(identifiers().first(), QStringLiteral("daily-2026-3-7"));
}

TEST_F(NotificationManagerTest, EveryAssignmentIsAnnouncedBeforeStoredAfterAndReschedulesAnEqualOneToo) {
    launchGranted();
    int announced = 0;
    QObject context;
    QObject::connect(manager.get(), &ObservableObject::objectWillChange, &context, [&] {
        ++announced;
        EXPECT_TRUE(manager->enabled());
        EXPECT_EQ(manager->hour(), 8);
        EXPECT_EQ(manager->minute(), 0);
        EXPECT_EQ(platform.notifications.removals, announced - 1);
    });
    manager->setEnabled(true);
    manager->setHour(8);
    manager->setMinute(0);
    EXPECT_EQ(announced, 3);
    EXPECT_EQ(platform.notifications.removals, 3);
    EXPECT_EQ(platform.defaults.writes, (std::vector<Write>{{PreferenceKeys::notificationsEnabled, true},
                                                            {PreferenceKeys::notificationHour, 8LL},
                                                            {PreferenceKeys::notificationMinute, 0LL}}));
}

TEST_F(NotificationManagerTest, StoresBeforeItReschedules) {
    launchGranted();
    manager->setHour(7);
    EXPECT_EQ(platform.defaults.values.value(PreferenceKeys::notificationHour), QVariant(7LL));
    launch();
    EXPECT_EQ(manager->hour(), 7);
}

TEST_F(NotificationManagerTest, AMorningThatDoesNotExistIsSkipped) {
    // 02:00 to 03:00 on 29 March 2026 do not exist in Paris.
    configure(true, 2LL, 30LL);
    platform.clock.set(test::local({2026, 3, 25, 12, 0, 0}));
    launchGranted();
    EXPECT_EQ(pending().size(), 12U);
    EXPECT_TRUE(identifiers().contains(QStringLiteral("daily-2026-3-28")));
    EXPECT_FALSE(identifiers().contains(QStringLiteral("daily-2026-3-29")));
    EXPECT_TRUE(identifiers().contains(QStringLiteral("daily-2026-3-30")));
}

TEST_F(NotificationManagerTest, AMidnightThatDoesNotExistIsSkipped) {
    const test::ScopedTimeZone brazil("America/Sao_Paulo");
    configure(true, 0LL, 0LL);
    platform.clock.set(test::local({2018, 11, 1, 12, 0, 0}));
    launchGranted();
    EXPECT_EQ(pending().size(), 12U);
    EXPECT_FALSE(identifiers().contains(QStringLiteral("daily-2018-11-4")));
}

TEST_F(NotificationManagerTest, ADayThatDoesNotExistIsNotScheduledAndNoDayTwice) {
    // Samoa had no 30 December 2011.
    const test::ScopedTimeZone samoa("Pacific/Apia");
    platform.clock.set(test::local({2011, 12, 28, 7, 0, 0}));
    launchGranted();
    const QStringList days = identifiers();
    EXPECT_FALSE(days.contains(QStringLiteral("daily-2011-12-30")));
    EXPECT_TRUE(days.contains(QStringLiteral("daily-2011-12-31")));
    EXPECT_EQ(days.count(QStringLiteral("daily-2011-12-31")), 1);
}

TEST_F(NotificationManagerTest, ImpossibleTimesOfADamagedStoreScheduleNothing) {
    for (const std::int64_t hour : {std::int64_t{-1}, std::int64_t{24}, std::int64_t{99}, least, greatest}) {
        configure(true, QVariant::fromValue<qlonglong>(hour), 0LL);
        launchGranted();
        EXPECT_EQ(manager->hour(), hour) << "read as it stands";
        EXPECT_TRUE(pending().empty()) << "hour " << hour;
    }
    for (const std::int64_t minute : {std::int64_t{-1}, std::int64_t{60}, least, greatest}) {
        configure(true, 8LL, QVariant::fromValue<qlonglong>(minute));
        launchGranted();
        EXPECT_TRUE(pending().empty()) << "minute " << minute;
    }
    manager->setMinute(0);
    EXPECT_EQ(pending().size(), 14U);
}

TEST_F(NotificationManagerTest, SchedulesWhatItCanAtTheEndsOfTime) {
    for (const Instant end : {Instant::min(), Instant::max()}) {
        platform.clock.set(end);
        launchGranted();
        EXPECT_LE(pending().size(), 14U);
    }
}

TEST_F(NotificationManagerTest, ShowsAndSoundsWhileTheApplicationIsInFront) {
    launchGranted();
    platform.setTime(test::local({2026, 3, 7, 8, 0, 0}));
    ASSERT_EQ(platform.notifications.delivered.size(), 1U);
    EXPECT_EQ(platform.notifications.delivered[0].options,
              (PresentationOptions{.banner = true, .sound = true}));
    manager->reschedule();
    EXPECT_EQ(platform.notifications.delivered.size(), 1U) << "what is delivered is left alone";
}

TEST(MorningNotificationBodyTest, NamesTheDaysItem) {
    // The first day of the year is the grape's.
    EXPECT_EQ(morningNotificationBody({234, 1, 1, 1}), QStringLiteral("🍇 Aujourd'hui : Raisin — Grape"));
}

TEST(MorningNotificationBodyTest, NamesTheFestivalsOfTheComplementaryDays) {
    EXPECT_EQ(morningNotificationBody({234, 13, 1, 1}), QStringLiteral("🎉 La Fête de la Vertu"));
    EXPECT_EQ(morningNotificationBody({234, 13, 2, 2}), QStringLiteral("🎉 La Fête du Génie"));
    EXPECT_EQ(morningNotificationBody({234, 13, 3, 3}), QStringLiteral("🎉 La Fête du Travail"));
    EXPECT_EQ(morningNotificationBody({234, 13, 4, 4}), QStringLiteral("🎉 La Fête de l'Opinion"));
    EXPECT_EQ(morningNotificationBody({234, 13, 5, 5}), QStringLiteral("🎉 La Fête des Récompenses"));
    EXPECT_EQ(morningNotificationBody({235, 13, 6, 6}), QStringLiteral("🎉 La Fête de la Révolution"));
}

TEST(MorningNotificationBodyTest, FallsBackOnTheMonth) {
    EXPECT_EQ(morningNotificationBody({234, 12, 31, 1}), QStringLiteral("🍎 Fructidor"));
    EXPECT_EQ(morningNotificationBody({234, 1, 0, 1}), QStringLiteral("🍇 Vendémiaire"));
    EXPECT_EQ(morningNotificationBody({234, 13, 7, 7}), QStringLiteral("🎉 Sansculottides"));
    EXPECT_EQ(morningNotificationBody({234, 13, 0, 1}), QStringLiteral("🎉 Sansculottides"));
}

TEST(MorningNotificationBodyDeathTest, AMonthOutsideTheCalendarStopsTheProgram) {
    EXPECT_DEATH(static_cast<void>(morningNotificationBody({234, 14, 1, 1})), "impossible state");
    EXPECT_DEATH(static_cast<void>(morningNotificationBody({234, 0, 1, 1})), "impossible state");
    EXPECT_DEATH(static_cast<void>(morningNotificationBody({234, -1, 1, 1})), "impossible state");
}

} // namespace
} // namespace tambrelle
