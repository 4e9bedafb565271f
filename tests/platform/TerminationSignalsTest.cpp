#include "platform/freedesktop/TerminationSignals.h"

#include "tests/support/EventLoop.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>

#include <sys/wait.h>
#include <unistd.h>

namespace tambrelle {
namespace {

class TerminationSignalsTest : public testing::Test {
protected:
    TerminationSignalsTest() {
        QObject::connect(&termination, &TerminationSignals::received, &termination, [this] { ++received; });
    }

    TerminationSignals termination;
    int received = 0;
};

TEST_F(TerminationSignalsTest, TellOfASignal) {
    ASSERT_EQ(std::raise(SIGTERM), 0);
    EXPECT_TRUE(test::waitUntil([this] { return received == 1; }));
    ::alarm(0); // this process is not one that ends
}

// A player that is silenced, or outlives the calendar, before it has become a program of its own.
TEST_F(TerminationSignalsTest, OfAChildEndTheChildAlone) {
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        std::raise(SIGTERM);
        ::_exit(EXIT_FAILURE); // the signal did not end it
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), EXIT_SUCCESS);
    test::runQueued();
    EXPECT_EQ(received, 0);
}

} // namespace
} // namespace tambrelle
