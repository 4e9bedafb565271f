#include "platform/freedesktop/EventLoopTimer.h"

#include "tests/support/EventLoop.h"

#include <QCoreApplication>
#include <QTimer>

#include <gtest/gtest.h>
#include <optional>
#include <string>

namespace tambrelle {
namespace {

using namespace std::chrono;

/// Sees the toolkit's timer whenever it fires.
class TimerSpy final : public QObject {
public:
    TimerSpy() { QCoreApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject* receiver, QEvent* event) override {
        const auto* timer = qobject_cast<QTimer*>(receiver);
        if (event->type() == QEvent::Timer && timer != nullptr && timer->intervalAsDuration() == watched) {
            type = timer->timerType();
            isSingleShot = timer->isSingleShot();
        }
        return false;
    }

    milliseconds watched{0};
    std::optional<Qt::TimerType> type;
    bool isSingleShot = true;
};

TEST(EventLoopTimerTest, IsPreciseAndKeepsItsInterval) {
    TimerSpy spy;
    // An interval that no other timer has.
    spy.watched = 7ms;
    EventLoopTimer timer;
    int fired = 0;
    timer.start(spy.watched, [&] { ++fired; });
    EXPECT_EQ(fired, 0) << "not at once";
    ASSERT_TRUE(test::waitUntil([&] { return fired >= 3; }));
    ASSERT_TRUE(spy.type.has_value()) << "no timer with this interval has fired";
    EXPECT_EQ(*spy.type, Qt::PreciseTimer);
    EXPECT_FALSE(spy.isSingleShot);
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
