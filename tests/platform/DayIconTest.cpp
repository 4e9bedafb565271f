#include "platform/freedesktop/statusitem/DayIcon.h"

#include <QColor>
#include <QImage>

#include <cstdint>
#include <gtest/gtest.h>
#include <vector>

namespace tambrelle {
namespace {

// These tests have no font database: a text that was drawn would stop them.

TEST(DayIconTest, EveryDayHasItsOwnPictureInEverySize) {
    for (const int side : {16, 22, 24, 32, 44, 48, 64}) {
        std::vector<QImage> pictures;
        for (std::int64_t day = 1; day <= 30; ++day) {
            const QImage picture = dayIcon(day, side);
            ASSERT_EQ(picture.size(), QSize(side, side));
            for (const QImage& other : pictures)
                ASSERT_NE(picture, other) << "day " << day << " at " << side;
            pictures.push_back(picture);
        }
    }
}

TEST(DayIconTest, CornersAreClearAndTheFiguresStayOnTheLeaf) {
    for (const int side : {16, 22, 48}) {
        const QImage picture = dayIcon(28, side);
        EXPECT_EQ(picture.pixelColor(0, 0).alpha(), 0);
        EXPECT_EQ(picture.pixelColor(side - 1, side - 1).alpha(), 0);
        // Within the frame, at half the page's height, is paper to the left of the figures.
        const QColor margin = picture.pixelColor(qRound(side * 0.15), qRound(side * 0.62));
        EXPECT_GT(margin.lightness(), 160) << "at " << side;
    }
}

TEST(DayIconTest, FiguresAreDark) {
    const QImage picture = dayIcon(8, 48);
    int dark = 0;
    for (int y = 14; y < 44; ++y) {
        for (int x = 8; x < 40; ++x)
            dark += picture.pixelColor(x, y).lightness() < 80 ? 1 : 0;
    }
    EXPECT_GT(dark, 60);
}

} // namespace
} // namespace tambrelle
