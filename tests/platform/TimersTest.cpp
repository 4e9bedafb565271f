#include "platform/freedesktop/timer/ChoreTimer.h"
#include "platform/freedesktop/timer/EventLoopTimer.h"
#include "platform/freedesktop/timer/GlibTimer.h"
#include "platform/freedesktop/timer/TickTimer.h"

#include "tests/fakes/FakeRepeatingTimer.h"
#include "tests/support/EventLoop.h"

#include <QAbstractEventDispatcher>

#include <gtest/gtest.h>
#include <string>
#include <type_traits>
#include <vector>

namespace tambrelle {
namespace {

using namespace std::chrono;

/// What holds for every timer on the event loop.
template <class Timer>
class TimersTest : public testing::Test {
protected:
    void SetUp() override {
        if (std::is_same_v<Timer, GlibTimer> && !GlibTimer::isServed())
            GTEST_SKIP() << "no loop of GLib's";
    }
};

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

TEST(EventLoopTimerTest, IsPrecise) {
    EventLoopTimer timer;
    timer.start(864ms, [] {});
    const auto running = QAbstractEventDispatcher::instance()->registeredTimers(&timer);
    ASSERT_EQ(running.size(), 1);
    EXPECT_EQ(running.first().timerType, Qt::PreciseTimer);
    EXPECT_EQ(running.first().interval, 864);
}

TEST(GlibTimerTest, KeepsItsIntervalHoweverLateItIsCalled) {
    EXPECT_EQ(GlibTimer::nextDue(1000us, 1000us, 100us), 1100us);
    EXPECT_EQ(GlibTimer::nextDue(1000us, 1099us, 100us), 1100us);
}

// As after sleep.
TEST(GlibTimerTest, DoesNotMakeUpForWhatWasMissed) {
    EXPECT_EQ(GlibTimer::nextDue(1000us, 1100us, 100us), 1200us);
    EXPECT_EQ(GlibTimer::nextDue(1000us, 7777us, 100us), 7877us);
}

TEST(TickTimerTest, IsOneThatFiresAndGlibsWhereItCanBe) {
    const auto timer = makeTickTimer();
    const bool isGlibs = dynamic_cast<GlibTimer*>(timer.get()) != nullptr;
    EXPECT_EQ(isGlibs, !qEnvironmentVariableIsSet("QT_NO_GLIB"));
    int fired = 0;
    timer->start(1ms, [&] { ++fired; });
    EXPECT_TRUE(test::waitUntil([&] { return fired >= 3; }));
}

TEST(ChoreTimerTest, DoesTheChoreAheadOfEachAction) {
    auto inner = std::make_unique<fakes::FakeRepeatingTimer>();
    const auto& clockwork = *inner;
    std::string order;
    ChoreTimer timer(std::move(inner), [&] { order += 'c'; });
    timer.start(864ms, [&] { order += 'a'; });
    EXPECT_EQ(clockwork.interval, 864ms);
    clockwork.fire();
    clockwork.fire();
    EXPECT_EQ(order, "caca");
}

} // namespace
} // namespace tambrelle
