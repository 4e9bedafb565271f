#include "platform/freedesktop/statusitem/NotifierPresentation.h"
#include "platform/freedesktop/statusitem/NotifierWatcher.h"
#include "tests/support/PrivateBus.h"

#include <chrono>
#include <gtest/gtest.h>

namespace tambrelle {
namespace {

/// The toolkit waits 25 s for a bus that does not answer.
constexpr std::chrono::seconds atOnce{5};

TEST(HungBusTest, NobodyWaitsForIt) {
    test::PrivateBus bus;
    ASSERT_TRUE(bus.isRunning()) << "no message bus on this machine";
    const QDBusConnection connection = bus.connect();
    ASSERT_TRUE(connection.isConnected());
    bus.freeze();
    const auto begin = std::chrono::steady_clock::now();
    {
        const NotifierWatcher watcher(connection);
        NotifierPresentation item(connection, {});
        item.present({.line = QStringLiteral("5:00"), .day = 23});
        item.present({.line = QStringLiteral("5:01"), .day = 24});
    }
    EXPECT_LT(std::chrono::steady_clock::now() - begin, atOnce);
}

} // namespace
} // namespace tambrelle
