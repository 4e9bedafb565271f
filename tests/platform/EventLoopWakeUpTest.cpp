#include "platform/freedesktop/notifications/EventLoopWakeUp.h"

#include "tests/fakes/FakeClock.h"
#include "tests/support/EventLoop.h"

#include <gtest/gtest.h>

using namespace tambrelle;
using namespace std::chrono_literals;

namespace {

class EventLoopWakeUpTest : public testing::Test {
protected:
    void armFor(Instant::duration wait) {
        wakeUp.arm(clock.now() + wait, [this] {
            ++calls;
            wakeUp.disarm();
        });
    }

    /// Until another wake-up on the same clock, armed after this one, has called.
    void letAnotherCall() {
        bool called = false;
        EventLoopWakeUp other(clock);
        other.arm(clock.now(), [&] {
            called = true;
            other.disarm();
        });
        EXPECT_TRUE(test::waitUntil([&called] { return called; }));
    }

    fakes::FakeClock clock;
    EventLoopWakeUp wakeUp{clock};
    int calls = 0;
};

} // namespace

TEST_F(EventLoopWakeUpTest, CallsWhenTheWaitIsOver) {
    armFor(20ms);
    EXPECT_TRUE(test::waitUntil([&] { return calls == 1; }, 2s));
}

TEST_F(EventLoopWakeUpTest, CallsAtOnceForWhatIsPastButNotFromWithin) {
    armFor(-1h);
    EXPECT_EQ(calls, 0);
    EXPECT_TRUE(test::waitUntil([&] { return calls == 1; }, 2s));
}

// As after sleep, or when the clock is set: the event loop wakes for something else.
TEST_F(EventLoopWakeUpTest, SeesAJumpOfTheClockWhenTheLoopWakes) {
    armFor(8h);
    test::runQueued();
    EXPECT_EQ(calls, 0);
    clock.advance(9h);
    EXPECT_TRUE(test::waitUntil([&] { return calls == 1; }, 2s));
}

TEST_F(EventLoopWakeUpTest, IsQuietOnceDisarmed) {
    armFor(1h);
    wakeUp.disarm();
    clock.advance(2h);
    letAnotherCall();
    EXPECT_EQ(calls, 0);
    const int reads = clock.reads();
    test::runQueued();
    EXPECT_EQ(clock.reads(), reads);
}

TEST_F(EventLoopWakeUpTest, KeepsOnlyTheLastInstant) {
    armFor(0s);
    armFor(1h);
    letAnotherCall();
    EXPECT_EQ(calls, 0);
}

TEST_F(EventLoopWakeUpTest, MayBeArmedFromWithin) {
    wakeUp.arm(clock.now(), [this] { armFor(-1s); });
    EXPECT_TRUE(test::waitUntil([&] { return calls == 1; }, 2s));
}
