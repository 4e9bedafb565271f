#include "app/Text.h"
#include "content/DailyItems.h"
#include "content/HistoricalData.h"
#include "core/RevolutionaryCalendar.h"
#include "tests/support/LiveState.h"

#include <QStringList>

#include <chrono>

namespace tambrelle {
namespace {

using namespace std::chrono;

class CalendarManagerStartTest : public test::LiveState {};

TEST_F(CalendarManagerStartTest, HoldsThePresentMomentAndToday) {
    platform.random.addIndex(7);
    const CalendarManager& manager = launch();
    const RevolutionaryDate today{234, 2, 23, 3};
    EXPECT_EQ(manager.todayDate(), today);
    EXPECT_EQ(manager.currentTime(), (DecimalTime{5, 0, 0}));
    EXPECT_EQ(manager.currentSlogan(), QStringLiteral("Ça ira, ça ira, ça ira"));
    EXPECT_EQ(manager.dayOffset(), 0);
    EXPECT_EQ(manager.currentDate(), today);
    EXPECT_EQ(manager.viewedGregorianDate(), noon);
    ASSERT_TRUE(manager.dailyItem().has_value());
    EXPECT_EQ(manager.dailyItem()->frenchName, DailyItems::item(today)->frenchName);
    EXPECT_EQ(manager.viewedEvents(), HistoricalData::events(today));
}

TEST_F(CalendarManagerStartTest, ComplementaryDayHasNoItem) {
    const CalendarManager& manager = launchAt(test::local({2025, 9, 19, 12, 0, 0}));
    EXPECT_EQ(manager.todayDate(), (RevolutionaryDate{233, 13, 1, 1}));
    EXPECT_FALSE(manager.dailyItem().has_value());
}

TEST_F(CalendarManagerStartTest, ReadsTheClockOnceAndTakesAllFromThatInstant) {
    launch();
    EXPECT_EQ(platform.clock.reads(), 1);
    EXPECT_EQ(platform.random.draws, 1);
}

TEST_F(CalendarManagerStartTest, RunsNoTick) {
    const CalendarManager& manager = launch();
    platform.clock.advance(24h);
    test::runQueued();
    EXPECT_EQ(manager.todayDate(), RevolutionaryCalendar::fromGregorian(noon));
    EXPECT_EQ(manager.currentTime(), RevolutionaryCalendar::toDecimalTime(noon));
    EXPECT_EQ(chimes(), 0U);
    EXPECT_EQ(platform.notifications.removals, 0);
}

TEST_F(CalendarManagerStartTest, StartsOneTimerOfADecimalSecond) {
    launch();
    EXPECT_EQ(platform.timer.starts, 1);
    EXPECT_EQ(platform.timer.interval, 864ms);
}

TEST_F(CalendarManagerStartTest, WritesNoPreference) {
    platform.defaults.values.insert(PreferenceKeys::menuBarFormat, QStringLiteral("Date"));
    launch();
    EXPECT_TRUE(platform.defaults.writes.empty());
    EXPECT_EQ(platform.defaults.values.value(PreferenceKeys::menuBarFormat), QStringLiteral("Date"));
    EXPECT_FALSE(platform.defaults.values.contains(PreferenceKeys::appTheme));
}

TEST_F(CalendarManagerStartTest, StartsTheNotifications) {
    launch();
    EXPECT_EQ(platform.notifications.authorizationRequests, 1);
    EXPECT_NE(platform.notifications.delegate, nullptr);
    EXPECT_TRUE(platform.notifications.pending().empty()) << "nothing before permission is given";
    platform.notifications.answer(true);
    EXPECT_EQ(platform.notifications.pending().size(), 13U);
}

TEST_F(CalendarManagerStartTest, NoChimeForTheHourOfTheLaunch) {
    launchAt(test::local({2025, 11, 15, 11, 59, 59}) + 999ms);
    tickAt(test::local({2025, 11, 15, 11, 59, 59}) + 999'999us);
    EXPECT_EQ(chimes(), 0U);
    tickAt(noon);
    EXPECT_EQ(chimes(), 1U);
}

TEST_F(CalendarManagerStartTest, StartsInYearsAtTheEndsOfTime) {
    for (const Instant end : {Instant::min(), Instant::max()}) {
        launchAt(end);
        tickAt(end);
        calendar->goToNextDay();
        calendar->goToPreviousDay();
        calendar->goToPreviousDay();
        EXPECT_EQ(calendar->dayOffset(), -1);
    }
}

/// Every port writes a line in one journal, so that the order across ports shows.
class Journal final : public Clock,
                      public RepeatingTimer,
                      public RandomSource,
                      public UserDefaults,
                      public UserNotificationCenter {
public:
    [[nodiscard]] Instant now() const override {
        lines.append(QStringLiteral("clock"));
        return sys_days(2025y / November / 15) + 11h;
    }
    void start(milliseconds /*interval*/, std::function<void()> /*action*/) override {
        lines.append(QStringLiteral("timer"));
    }
    std::uint64_t next() override {
        lines.append(QStringLiteral("random"));
        return UINT64_MAX / 20;
    }
    [[nodiscard]] std::optional<QString> string(const QString& key) const override {
        lines.append(QStringLiteral("read ") + key);
        return std::nullopt;
    }
    [[nodiscard]] bool boolean(const QString& /*key*/) const override { return true; }
    [[nodiscard]] std::int64_t integer(const QString& /*key*/) const override { return 0; }
    void setString(const QString& key, const QString& /*value*/) override {
        lines.append(QStringLiteral("write ") + key);
    }
    void setBoolean(const QString& key, bool /*value*/) override {
        lines.append(QStringLiteral("write ") + key);
    }
    void setInteger(const QString& key, std::int64_t /*value*/) override {
        lines.append(QStringLiteral("write ") + key);
    }
    void setDelegate(UserNotificationCenterDelegate* /*delegate*/) override {
        lines.append(QStringLiteral("delegate"));
    }
    void requestAuthorization(std::function<void(bool)> /*completion*/) override {
        lines.append(QStringLiteral("authorization"));
    }
    void removeAllPending() override { lines.append(QStringLiteral("remove")); }
    void add(const UserNotificationRequest& /*request*/) override { lines.append(QStringLiteral("add")); }
    [[nodiscard]] std::vector<UserNotificationRequest> pending() const override { return {}; }

    mutable QStringList lines;
};

TEST(CalendarManagerOrderTest, TakesTheInstantThenTheSloganThenThePreferencesThenStarts) {
    Journal journal;
    const fakes::FakeResourceBundle resources;
    fakes::FakeAudioPlayer player;
    fakes::FakeSystemSound alert;
    SoundManager sound({journal, resources, player, alert});
    NotificationManager notifications({journal, journal, journal});
    journal.lines.clear();
    const CalendarManager manager({journal, journal, journal, journal, sound, notifications});
    const QStringList expected{
        QStringLiteral("clock"),         QStringLiteral("random"), QStringLiteral("read menuBarFormat"),
        QStringLiteral("read appTheme"), QStringLiteral("timer"),  QStringLiteral("delegate"),
        QStringLiteral("authorization")};
    EXPECT_EQ(journal.lines.join(QStringLiteral(", ")).toStdString(),
              expected.join(QStringLiteral(", ")).toStdString());
}

} // namespace
} // namespace tambrelle
