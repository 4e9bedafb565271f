#include "platform/freedesktop/statusitem/LabelPlacement.h"

#include <gtest/gtest.h>

namespace tambrelle {
namespace {

constexpr QRect screen(0, 0, 1280, 720);
constexpr QSize label(240, 20);

QPoint placed(const QRect& available, const QRect& bar = {}) {
    return LabelPlacement{.screen = screen, .available = available, .bar = bar}.place(label);
}

TEST(LabelPlacementTest, StandsInTheUpperRightCornerWithoutABar) {
    EXPECT_EQ(placed(screen), QPoint(1032, 8));
}

TEST(LabelPlacementTest, StandsBelowABarAtTheTop) {
    EXPECT_EQ(placed(QRect(0, 28, 1280, 692)), QPoint(1032, 36));
}

TEST(LabelPlacementTest, StandsAboveABarAtTheBottom) {
    EXPECT_EQ(placed(QRect(0, 0, 1280, 676)), QPoint(1032, 648));
}

TEST(LabelPlacementTest, KeepsOffABarThatTheWindowManagerDoesNotKnow) {
    EXPECT_EQ(placed(screen, QRect(0, 0, 1280, 23)), QPoint(1032, 31));
    EXPECT_EQ(placed(screen, QRect(0, 697, 1280, 23)), QPoint(1032, 669));
    EXPECT_EQ(placed(screen, QRect(1240, 0, 40, 720)), QPoint(992, 8));
}

TEST(LabelPlacementTest, CountsABarThatBothKnowOnlyOnce) {
    EXPECT_EQ(placed(QRect(0, 26, 1280, 694), QRect(0, 0, 1280, 26)), QPoint(1032, 34));
}

TEST(LabelPlacementTest, IgnoresABarOnAnotherScreen) {
    EXPECT_EQ(placed(screen, QRect(1280, 0, 1280, 23)), QPoint(1032, 8));
}

} // namespace
} // namespace tambrelle
