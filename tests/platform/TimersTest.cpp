#include "platform/freedesktop/timer/ChoreTimer.h"
#include "platform/freedesktop/timer/EventLoopTimer.h"
#include "platform/freedesktop/timer/GlibTimer.h"
#include "platform/freedesktop/timer/LoopTimer.h"

#include "tests/fakes/FakeRepeatingTimer.h"
#include "tests/support/EventLoop.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace tambrelle {
namespace {

using namespace std::chrono;

/// What holds for every timer on the event loop.
template <class Timer>
class TimersTest : public testing::Test {};

using Timers = testing::Types<EventLoopTimer, GlibTimer>;
TYPED_TEST_SUITE(TimersTest, Timers);

TYPED_TEST(TimersTest, FiresAtEachIntervalAndNotBefore) {
    constexpr milliseconds interval{7};
    TypeParam timer;
    std::vector<steady_clock::time_point> firings;
    const auto begin = steady_clock::now();
    timer.start(interval, [&] { firings.push_back(steady_clock::now()); });
    EXPECT_TRUE(firings.empty()) << "not at once";
    ASSERT_TRUE(test::waitUntil([&] { return firings.size() >= 6; }));
    for (std::size_t at = 0; at < firings.size(); ++at)
        EXPECT_GE(firings[at] - begin, interval * (at + 1) - 1ms) << at;
}

TYPED_TEST(TimersTest, StartedAnewDropsTheFormerAction) {
    TypeParam timer;
    int former = 0;
    int latter = 0;
    timer.start(1ms, [&] { ++former; });
    timer.start(1ms, [&] { ++latter; });
    EXPECT_TRUE(test::waitUntil([&] { return latter >= 3; }));
    EXPECT_EQ(former, 0);
}

TYPED_TEST(TimersTest, DoesNotFireOnceItIsDestroyed) {
    int fired = 0;
    {
        TypeParam timer;
        timer.start(1ms, [&] { ++fired; });
    }
    TypeParam other;
    int othersFired = 0;
    other.start(1ms, [&] { ++othersFired; });
    EXPECT_TRUE(test::waitUntil([&] { return othersFired >= 3; }));
    EXPECT_EQ(fired, 0);
}

// As after sleep.
TYPED_TEST(TimersTest, DoesNotMakeUpForWhatWasMissed) {
    constexpr milliseconds interval{100};
    TypeParam timer;
    int fired = 0;
    timer.start(interval, [&] {
        if (++fired > 1)
            return;
        const auto end = steady_clock::now() + interval * 7 / 2;
        while (steady_clock::now() < end) {
        }
    });
    ASSERT_TRUE(test::waitUntil([&] { return fired >= 2; }));
    QCoreApplication::processEvents();
    EXPECT_EQ(fired, 2);
}

TEST(EventLoopTimerTest, IsPrecise) {
    EventLoopTimer timer;
    timer.start(864ms, [] {});
    const auto running = QAbstractEventDispatcher::instance()->registeredTimers(&timer);
    ASSERT_EQ(running.size(), 1);
    EXPECT_EQ(running.first().timerType, Qt::PreciseTimer);
    EXPECT_EQ(running.first().interval, 864);
}

TEST(LoopTimerTest, IsOneThatFires) {
    const auto timer = makeLoopTimer();
    int fired = 0;
    timer->start(1ms, [&] { ++fired; });
    EXPECT_TRUE(test::waitUntil([&] { return fired >= 3; }));
}

TEST(ChoreTimerTest, DoesTheChoreAheadOfTheFirstActionAndOfEachEighthFromThere) {
    auto inner = std::make_unique<fakes::FakeRepeatingTimer>();
    const auto& clockwork = *inner;
    std::string order;
    ChoreTimer timer(std::move(inner), [&] { order += 'c'; });
    timer.start(864ms, [&] { order += 'a'; });
    EXPECT_EQ(clockwork.interval, 864ms);
    for (int firing = 0; firing < 17; ++firing)
        clockwork.fire();
    EXPECT_EQ(order, "caaaaaaaacaaaaaaaaca");
}

} // namespace
} // namespace tambrelle
