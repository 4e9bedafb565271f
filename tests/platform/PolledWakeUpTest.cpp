#include "platform/freedesktop/notifications/PolledWakeUp.h"

#include "tests/fakes/FakeClock.h"

#include <gtest/gtest.h>

using namespace tambrelle;
using namespace std::chrono_literals;

namespace {

class PolledWakeUpTest : public testing::Test {
protected:
    void armFor(Instant::duration wait) {
        wakeUp.arm(clock.now() + wait, [this] { ++calls; });
    }

    void pass(Instant::duration time) {
        clock.advance(time);
        wakeUp.poll();
    }

    fakes::FakeClock clock;
    PolledWakeUp wakeUp{clock};
    int calls = 0;
};

} // namespace

TEST_F(PolledWakeUpTest, CallsWhenTheWaitIsOver) {
    armFor(2s);
    pass(1s);
    EXPECT_EQ(calls, 0);
    pass(1s);
    EXPECT_EQ(calls, 1);
}

TEST_F(PolledWakeUpTest, CallsForWhatIsPastButNotFromWithin) {
    armFor(-1h);
    EXPECT_EQ(calls, 0);
    wakeUp.poll();
    EXPECT_EQ(calls, 1);
}

// As after sleep, or when the clock is set.
TEST_F(PolledWakeUpTest, SeesAJumpOfTheClock) {
    armFor(8h);
    wakeUp.poll();
    EXPECT_EQ(calls, 0);
    pass(9h);
    EXPECT_EQ(calls, 1);
}

// The instant may mean something else by then, in another zone.
TEST_F(PolledWakeUpTest, LetsItsOwnerLookTwiceAMinute) {
    armFor(8h);
    for (int second = 0; second < 60; ++second)
        pass(1s);
    EXPECT_EQ(calls, 2);
}

TEST_F(PolledWakeUpTest, CallsWhenTheClockHasGoneBack) {
    armFor(8h);
    pass(-24h);
    EXPECT_EQ(calls, 1);
    pass(1s);
    EXPECT_EQ(calls, 1);
    pass(29s);
    EXPECT_EQ(calls, 2);
}

TEST_F(PolledWakeUpTest, IsQuietOnceDisarmed) {
    armFor(1h);
    wakeUp.disarm();
    const int reads = clock.reads();
    pass(2h);
    EXPECT_EQ(calls, 0);
    EXPECT_EQ(clock.reads(), reads);
}

TEST_F(PolledWakeUpTest, KeepsOnlyTheLastInstant) {
    armFor(0s);
    armFor(1h);
    wakeUp.poll();
    EXPECT_EQ(calls, 0);
}

TEST_F(PolledWakeUpTest, MayBeArmedFromWithin) {
    wakeUp.arm(clock.now(), [this] { armFor(-1s); });
    wakeUp.poll();
    EXPECT_EQ(calls, 0);
    wakeUp.poll();
    EXPECT_EQ(calls, 1);
}

TEST_F(PolledWakeUpTest, MayBeDisarmedFromWithin) {
    wakeUp.arm(clock.now(), [this] {
        ++calls;
        wakeUp.disarm();
    });
    wakeUp.poll();
    wakeUp.poll();
    EXPECT_EQ(calls, 1);
}
