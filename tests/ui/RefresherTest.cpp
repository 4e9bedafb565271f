#include "ui/Refresher.h"

#include "app/ObservableObject.h"
#include "app/Published.h"
#include "tests/support/EventLoop.h"

#include <gtest/gtest.h>
#include <memory>

namespace tambrelle {
namespace {

class Observed final : public ObservableObject {
public:
    Published<int> value{*this, 0};
};

class RefresherTest : public ::testing::Test {
protected:
    RefresherTest() { refresher.observe(observed); }

    Observed observed;
    int refreshes = 0;
    int seen = -1;
    Refresher refresher{[this] {
        ++refreshes;
        seen = observed.value.get();
    }};
};

TEST_F(RefresherTest, RefreshesOnceATurnHoweverManyValuesChanged) {
    for (int next = 1; next <= 10; ++next)
        observed.value = next;
    EXPECT_EQ(refreshes, 0) << "the announcement comes before the value: too early to read";
    test::runQueued();
    EXPECT_EQ(refreshes, 1);
    EXPECT_EQ(seen, 10);

    test::runQueued();
    EXPECT_EQ(refreshes, 1) << "nothing changed";
    observed.value = 11;
    test::runQueued();
    EXPECT_EQ(refreshes, 2);
    EXPECT_EQ(seen, 11);
}

TEST_F(RefresherTest, ObservesSeveralObjectsWithOneRefresh) {
    Observed other;
    refresher.observe(other);
    observed.value = 1;
    other.value = 1;
    test::runQueued();
    EXPECT_EQ(refreshes, 1);
    other.value = 2;
    test::runQueued();
    EXPECT_EQ(refreshes, 2);
}

TEST_F(RefresherTest, RefreshesAtTheEndOfAGroupOfChanges) {
    {
        const ChangeGroup group(observed);
        observed.value = 1;
        {
            const ChangeGroup partOfIt(observed);
            observed.value = 2;
        }
        EXPECT_EQ(refreshes, 0);
    }
    EXPECT_EQ(refreshes, 1);
    EXPECT_EQ(seen, 2);
    test::runQueued();
    EXPECT_EQ(refreshes, 1);
    { const ChangeGroup empty(observed); }
    EXPECT_EQ(refreshes, 1) << "nothing changed";
    refresher.setPaused(true);
    {
        const ChangeGroup unseen(observed);
        observed.value = 3;
    }
    EXPECT_EQ(refreshes, 1);
}

TEST_F(RefresherTest, DoesNothingWhilePaused) {
    refresher.setPaused(true);
    observed.value = 1;
    test::runQueued();
    EXPECT_EQ(refreshes, 0);
}

TEST_F(RefresherTest, PauseHoldsBackARefreshThatIsOnItsWay) {
    observed.value = 1;
    refresher.setPaused(true);
    test::runQueued();
    EXPECT_EQ(refreshes, 0);
}

TEST_F(RefresherTest, ResumingRefreshesOnce) {
    refresher.setPaused(true);
    observed.value = 1;
    observed.value = 2;
    refresher.setPaused(false);
    EXPECT_EQ(refreshes, 0) << "on the next turn, not at once";
    test::runQueued();
    EXPECT_EQ(refreshes, 1);
    EXPECT_EQ(seen, 2);

    refresher.setPaused(false);
    test::runQueued();
    EXPECT_EQ(refreshes, 1) << "it was not paused";
}

TEST_F(RefresherTest, PausedAndResumedInOneTurnRefreshesOnce) {
    observed.value = 1;
    refresher.setPaused(true);
    refresher.setPaused(false);
    test::runQueued();
    EXPECT_EQ(refreshes, 1);
}

TEST_F(RefresherTest, ChangeWithinARefreshIsRefreshedOnTheTurnAfter) {
    int runs = 0;
    Refresher echo([&] {
        if (++runs == 1)
            observed.value = 5;
    });
    echo.observe(observed);
    observed.value = 1;
    EXPECT_TRUE(test::waitUntil([&] { return runs == 2; }));
    EXPECT_EQ(seen, 5);
}

TEST(RefresherLifeTest, QueuedRefreshDiesWithIt) {
    Observed observed;
    int refreshes = 0;
    auto refresher = std::make_unique<Refresher>([&] { ++refreshes; });
    refresher->observe(observed);
    observed.value = 1;
    refresher.reset();
    test::runQueued();
    EXPECT_EQ(refreshes, 0);
}

} // namespace
} // namespace tambrelle
