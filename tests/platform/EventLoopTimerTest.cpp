#include "platform/freedesktop/EventLoopTimer.h"

#include "tests/support/EventLoop.h"

#include <QAbstractEventDispatcher>

#include <gtest/gtest.h>
#include <string>

namespace tambrelle {
namespace {

using namespace std::chrono;

TEST(EventLoopTimerTest, IsPreciseAndKeepsItsInterval) {
    EventLoopTimer timer;
    int fired = 0;
    timer.start(7ms, [&] { ++fired; });
    EXPECT_EQ(fired, 0) << "not at once";
    ASSERT_TRUE(test::waitUntil([&] { return fired >= 3; }));
    const auto running = QAbstractEventDispatcher::instance()->registeredTimers(&timer);
    ASSERT_EQ(running.size(), 1);
    EXPECT_EQ(running.first().timerType, Qt::PreciseTimer);
    EXPECT_EQ(running.first().interval, 7);
}

TEST(EventLoopTimerTest, StartedAnewDropsTheFormerAction) {
    EventLoopTimer timer;
    int former = 0;
    int latter = 0;
    timer.start(1ms, [&] { ++former; });
    timer.start(1ms, [&] { ++latter; });
    EXPECT_TRUE(test::waitUntil([&] { return latter >= 3; }));
    EXPECT_EQ(former, 0);
}

TEST(EventLoopTimerTest, CallsWhatComesFirstAheadOfEachAction) {
    std::string order;
    EventLoopTimer timer([&] { order += 'f'; });
    timer.start(1ms, [&] { order += 'a'; });
    EXPECT_TRUE(test::waitUntil([&] { return order.size() >= 4; }));
    EXPECT_EQ(order.substr(0, 4), "fafa");
}

TEST(EventLoopTimerTest, DoesNotFireOnceItIsDestroyed) {
    int fired = 0;
    {
        EventLoopTimer timer;
        timer.start(1ms, [&] { ++fired; });
    }
    EventLoopTimer other;
    int othersFired = 0;
    other.start(1ms, [&] { ++othersFired; });
    EXPECT_TRUE(test::waitUntil([&] { return othersFired >= 3; }));
    EXPECT_EQ(fired, 0);
}

} // namespace
} // namespace tambrelle
