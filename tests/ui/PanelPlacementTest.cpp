#include "ui/panel/PanelPlacement.h"

#include <gtest/gtest.h>

namespace tambrelle {
namespace {

constexpr QSize panel{320, 700};

QRect placed(QPoint click, QRect available) {
    return PanelPlacement{.click = click, .available = available}.place(panel);
}

TEST(PanelPlacementTest, StandsUnderABarAtTheTop) {
    const QRect belowBar(0, 26, 1920, 1054);
    EXPECT_EQ(placed({960, 13}, belowBar), QRect(QPoint(800, 27), panel));
}

TEST(PanelPlacementTest, StandsOnABarAtTheBottom) {
    const QRect aboveBar(0, 0, 1920, 1054);
    const QRect place = placed({960, 1067}, aboveBar);
    EXPECT_EQ(place.size(), panel);
    EXPECT_EQ(place.center().x(), 959);
    EXPECT_EQ(place.bottom(), 1052);
}

TEST(PanelPlacementTest, LeavesTheItemInViewWhereNoBarKeepsItsPlaceFree) {
    const QRect screen(0, 0, 1920, 1080);
    EXPECT_FALSE(placed({960, 13}, screen).contains(960, 13));
    EXPECT_FALSE(placed({960, 1067}, screen).contains(960, 1067));
}

TEST(PanelPlacementTest, StaysOnTheScreenAtEveryEdge) {
    const QRect second(1920, -200, 1280, 1024); // a screen beside the first, and higher
    for (const int x : {1920, 1925, 2500, 3195, 3199}) {
        for (const int y : {-200, -190, 300, 815, 823})
            EXPECT_TRUE(second.contains(placed({x, y}, second))) << x << "," << y;
    }
}

TEST(PanelPlacementTest, AClickOutsideTheFreePartIsMetAtItsEdge) {
    const QRect rightOfBar(48, 0, 1872, 1080);
    EXPECT_EQ(placed({20, 200}, rightOfBar).left(), 48);
}

TEST(PanelPlacementTest, IsNoTallerThanTheScreen) {
    const QRect low(0, 0, 1024, 600);
    EXPECT_EQ(placed({500, 10}, low), QRect(340, 0, 320, 600));
}

} // namespace
} // namespace tambrelle
