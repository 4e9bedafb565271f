#include "tests/fakes/FakePlatform.h"
#include "tests/support/ScopedTimeZone.h"

#include <gtest/gtest.h>

namespace tambrelle::fakes {
namespace {

using namespace std::chrono;

constexpr Instant noon = sys_days(2025y / November / 15) + 12h;

UserNotificationRequest requestAt(const QString& identifier, std::int64_t hour, std::int64_t minute) {
    return {.identifier = identifier,
            .title = identifier,
            .body = {},
            .trigger = {.year = 2025, .month = 11, .day = 15, .hour = hour, .minute = minute}};
}

class AcceptingDelegate final : public UserNotificationCenterDelegate {
public:
    PresentationOptions willPresent(const UserNotificationRequest& /*request*/) override {
        return {.banner = true, .sound = true};
    }
};

class FakeUserNotificationCenterTest : public ::testing::Test {
protected:
    FakeUserNotificationCenterTest() { platform.clock.set(noon); }

    void grant() {
        platform.notifications.requestAuthorization([](bool /*granted*/) {});
        platform.notifications.answer(true);
    }

    test::ScopedTimeZone zone{"UTC"};
    FakePlatform platform;
};

TEST_F(FakeUserNotificationCenterTest, DeliversWhenTheClockReachesTheMinute) {
    grant();
    platform.notifications.add(requestAt(QStringLiteral("later"), 12, 2));
    platform.notifications.add(requestAt(QStringLiteral("sooner"), 12, 1));
    platform.setTime(noon + 59s);
    EXPECT_TRUE(platform.notifications.delivered.empty());
    platform.setTime(noon + 1min);
    ASSERT_EQ(platform.notifications.delivered.size(), 1U);
    EXPECT_EQ(platform.notifications.delivered[0].request.identifier, QStringLiteral("sooner"));
    EXPECT_EQ(platform.notifications.delivered[0].options, PresentationOptions{});
    EXPECT_EQ(platform.notifications.pending().size(), 1U);
}

TEST_F(FakeUserNotificationCenterTest, AsksTheDelegateBeforeItDelivers) {
    AcceptingDelegate delegate;
    platform.notifications.setDelegate(&delegate);
    grant();
    platform.notifications.add(requestAt(QStringLiteral("due"), 12, 1));
    platform.setTime(noon + 1h);
    ASSERT_EQ(platform.notifications.delivered.size(), 1U);
    EXPECT_EQ(platform.notifications.delivered[0].options, (PresentationOptions{true, true}));
}

TEST_F(FakeUserNotificationCenterTest, DeliversNothingWithoutPermission) {
    platform.notifications.requestAuthorization([](bool /*granted*/) {});
    platform.notifications.answer(false);
    platform.notifications.add(requestAt(QStringLiteral("due"), 12, 1));
    platform.setTime(noon + 1h);
    EXPECT_TRUE(platform.notifications.delivered.empty());
    EXPECT_TRUE(platform.notifications.pending().empty());
}

TEST_F(FakeUserNotificationCenterTest, WhatFellDueBeforeARemovalIsDelivered) {
    grant();
    platform.notifications.add(requestAt(QStringLiteral("due"), 12, 1));
    platform.notifications.add(requestAt(QStringLiteral("pending"), 14, 0));
    platform.clock.set(noon + 1h);
    platform.notifications.removeAllPending();
    ASSERT_EQ(platform.notifications.delivered.size(), 1U);
    EXPECT_EQ(platform.notifications.delivered[0].request.identifier, QStringLiteral("due"));
    EXPECT_TRUE(platform.notifications.pending().empty());
}

TEST_F(FakeUserNotificationCenterTest, SameIdentifierReplaces) {
    platform.notifications.add(requestAt(QStringLiteral("one"), 13, 0));
    platform.notifications.add(requestAt(QStringLiteral("one"), 14, 0));
    ASSERT_EQ(platform.notifications.pending().size(), 1U);
    EXPECT_EQ(platform.notifications.pending()[0].trigger.hour, 14);
}

} // namespace
} // namespace tambrelle::fakes
