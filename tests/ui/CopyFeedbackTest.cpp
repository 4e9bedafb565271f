#include "ui/panel/CopyFeedback.h"

#include "tests/support/EventLoop.h"

#include <gtest/gtest.h>
#include <utility>
#include <vector>

namespace tambrelle {
namespace {

using std::chrono::milliseconds;

class CopyFeedbackTest : public ::testing::Test {
protected:
    std::vector<std::pair<milliseconds, std::function<void()>>> delayed;
    CopyFeedback feedback{[this](milliseconds delay, std::function<void()> action) {
        delayed.emplace_back(delay, std::move(action));
    }};
};

TEST_F(CopyFeedbackTest, ShowsForTwoSeconds) {
    EXPECT_FALSE(feedback.showing());
    feedback.copied();
    EXPECT_TRUE(feedback.showing());
    ASSERT_EQ(delayed.size(), 1U);
    EXPECT_EQ(delayed.front().first, milliseconds(2000));
    delayed.front().second();
    EXPECT_FALSE(feedback.showing());
}

TEST_F(CopyFeedbackTest, ASecondCopyDoesNotPutOffTheFirstReset) {
    feedback.copied();
    feedback.copied();
    ASSERT_EQ(delayed.size(), 2U);
    delayed[0].second();
    EXPECT_FALSE(feedback.showing()) << "the first copy's reset ends what the second one shows";
    feedback.copied();
    delayed[1].second();
    EXPECT_FALSE(feedback.showing());
}

TEST_F(CopyFeedbackTest, TellsOfChangesOnly) {
    std::vector<bool> changes;
    QObject::connect(&feedback, &CopyFeedback::changed, &feedback,
                     [&](bool showing) { changes.push_back(showing); });
    feedback.copied();
    feedback.copied();
    delayed[0].second();
    delayed[1].second();
    EXPECT_EQ(changes, (std::vector{true, false}));
}

TEST(EventLoopLaterTest, RunsTheActionFromTheEventLoop) {
    bool ran = false;
    eventLoopLater()(milliseconds(1), [&ran] { ran = true; });
    EXPECT_FALSE(ran);
    EXPECT_TRUE(test::waitUntil([&ran] { return ran; }));
}

TEST(EventLoopLaterTest, AResetThatComesAfterTheEndOfItsPanelDoesNothing) {
    std::function<void()> reset;
    int changes = 0;
    QObject context;
    {
        CopyFeedback gone(
            [&reset](milliseconds, std::function<void()> action) { reset = std::move(action); });
        QObject::connect(&gone, &CopyFeedback::changed, &context, [&changes] { ++changes; });
        gone.copied();
    }
    ASSERT_EQ(changes, 1);
    reset();
    EXPECT_EQ(changes, 1);
}

} // namespace
} // namespace tambrelle
