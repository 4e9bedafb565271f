#include "ui/panel/PanelPlacement.h"

#include <gtest/gtest.h>

namespace tambrelle {
namespace {

constexpr QSize panel{320, 700};

QRect placed(QPoint click, QRect available) {
    return PanelPlacement{.click = click, .available = available, .top = {}}.place(panel);
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

TEST(PanelPlacementTest, AnOpenPanelKeepsItsTopWhileThereIsRoom) {
    const PanelPlacement open{.click = {960, 1067}, .available = {0, 0, 1920, 1054}, .top = 300};
    EXPECT_EQ(open.place({320, 500}).top(), 300);
    EXPECT_EQ(open.place({320, 754}).top(), 300);
    EXPECT_EQ(open.place({320, 800}).top(), 254);
}

TEST(PanelPlacementTest, ItsRoomEndsBeforeTheClick) {
    const QRect available(0, 0, 1366, 768);
    for (const QPoint click : {QPoint(1200, 19), QPoint(1200, 750)}) {
        const PanelPlacement placement{.click = click, .available = available, .top = {}};
        EXPECT_FALSE(placement.place({320, placement.room(500)}).contains(click)) << click.y();
        EXPECT_GT(placement.room(500), 700);
    }
    const PanelPlacement underABar{.click = {700, 13}, .available = {0, 26, 1366, 742}, .top = {}};
    EXPECT_EQ(underABar.room(500), 741);
}

TEST(PanelPlacementTest, ItsRoomIsTheScreenWhereItCoversTheClickInAnyCase) {
    const PanelPlacement middle{.click = {700, 380}, .available = {0, 26, 1366, 742}, .top = {}};
    EXPECT_EQ(middle.room(500), 742);
    EXPECT_EQ(middle.room(374), 374);
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
