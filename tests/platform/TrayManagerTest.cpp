#include "platform/freedesktop/statusitem/TrayManager.h"

#include <gtest/gtest.h>

namespace tambrelle {
namespace {

TEST(TrayManagerTest, FindsNoTrayWhereTheScreenIsInMemory) {
    const TrayManager tray;
    EXPECT_FALSE(tray.isPresent());
    EXPECT_EQ(tray.foreground(), std::nullopt);
}

} // namespace
} // namespace tambrelle
