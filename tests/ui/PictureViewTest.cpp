#include "ui/panel/PictureView.h"

#include "tests/support/Printers.h"
#include "tests/ui/PrintedColor.h"
#include "ui/Ink.h"
#include "ui/Palette.h"
#include "ui/TextLabel.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tambrelle {
namespace {

class PictureViewTest : public ::testing::Test {
protected:
    /// A plate of one colour.
    QString plate(const QSize& size, const QColor& color) {
        QImage image(size, QImage::Format_RGB32);
        image.fill(color);
        QString file = folder.filePath("plate.png");
        EXPECT_TRUE(image.save(file));
        return file;
    }
    QImage grabbed(AppTheme theme) {
        view.setPalette(panelPalette(theme));
        view.setAutoFillBackground(true);
        view.resize(288, 260);
        return view.grab().toImage();
    }

    QTemporaryDir folder;
    PictureView view;
};

TEST_F(PictureViewTest, MultipliesThePlateWithTheThemesField) {
    const QColor ink(136, 170, 102);
    view.present(plate({288, 260}, ink), "🌿");
    test::expectNear(grabbed(AppTheme::light).pixelColor(144, 130), test::printed(ink, Palette::parchment));
    test::expectNear(grabbed(AppTheme::sepiaNight).pixelColor(144, 130),
                     test::printed(ink, Palette::agedTan));
}

TEST_F(PictureViewTest, WhiteIsTheFieldAndBlackStaysBlack) {
    view.present(plate({100, 100}, Qt::white), "🌿");
    EXPECT_EQ(grabbed(AppTheme::sepiaNight).pixelColor(144, 130), Palette::agedTan);
    QImage black(10, 10, QImage::Format_RGB32);
    black.fill(Qt::black);
    EXPECT_EQ(composedPicture(black, {.size = {20, 20}, .field = Palette::agedTan}).pixelColor(10, 10),
              Qt::black);
}

TEST_F(PictureViewTest, FitsTheWholePlateWithItsProportions) {
    const QColor ink(0, 0, 200);
    view.present(plate({100, 200}, ink), "🌿"); // becomes 130 by 260, in the middle
    const QImage image = grabbed(AppTheme::sepiaNight);
    test::expectNear(image.pixelColor(144 - 60, 130), test::printed(ink, Palette::agedTan));
    test::expectNear(image.pixelColor(144 + 60, 130), test::printed(ink, Palette::agedTan));
    EXPECT_EQ(image.pixelColor(144 - 70, 130), Palette::agedTan) << "beside the plate is the field";
    EXPECT_EQ(image.pixelColor(144 + 70, 130), Palette::agedTan);
}

TEST_F(PictureViewTest, HasRoundCornersAndABrassOutline) {
    view.present(plate({288, 260}, Qt::white), "🌿");
    const QImage image = grabbed(AppTheme::sepiaNight);
    for (const QPoint corner : {QPoint(0, 0), QPoint(287, 0), QPoint(0, 259), QPoint(287, 259)})
        EXPECT_EQ(image.pixelColor(corner), Palette::mahogany) << corner.x() << "," << corner.y();
    const auto half = [](int one, int other) { return (one + other) / 2; };
    const QColor outline(half(Palette::brass.red(), Palette::agedTan.red()),
                         half(Palette::brass.green(), Palette::agedTan.green()),
                         half(Palette::brass.blue(), Palette::agedTan.blue()));
    test::expectNear(image.pixelColor(144, 0), outline, 2);
    test::expectNear(image.pixelColor(144, 259), outline, 2);
    test::expectNear(image.pixelColor(0, 130), outline, 2);
    test::expectNear(image.pixelColor(287, 130), outline, 2);
    EXPECT_EQ(image.pixelColor(144, 1), Palette::agedTan) << "one pixel wide";
}

TEST_F(PictureViewTest, ShowsTheEmojiInTheSameFrameWithoutAPlate) {
    view.present(std::nullopt, "🌿");
    const QImage image = grabbed(AppTheme::sepiaNight);
    auto* emoji = view.findChild<TextLabel*>();
    ASSERT_NE(emoji, nullptr);
    EXPECT_TRUE(emoji->isVisibleTo(&view));
    EXPECT_EQ(emoji->text(), "🌿");
    EXPECT_EQ(emoji->style().size, 80);
    EXPECT_EQ(image.pixelColor(10, 130), Palette::mahogany) << "the field belongs to the plate";
    EXPECT_NE(image.pixelColor(144, 0), Palette::mahogany) << "the outline is there";
}

TEST_F(PictureViewTest, AFileThatIsNoPictureFallsBackToTheEmoji) {
    QFile broken(folder.filePath("plate.png"));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
    broken.write("not a picture");
    broken.close();
    view.present(broken.fileName(), "🌿");
    EXPECT_TRUE(view.findChild<TextLabel*>()->isVisibleTo(&view));
}

TEST_F(PictureViewTest, IsMadeForTheScreensPixels) {
    QImage plate(600, 600, QImage::Format_RGB32);
    plate.fill(Qt::gray);
    const QImage image =
        composedPicture(plate, {.size = {288, 260}, .devicePixelRatio = 2, .field = Palette::parchment});
    EXPECT_EQ(image.size(), QSize(576, 520));
    EXPECT_EQ(image.devicePixelRatio(), 2);
}

} // namespace
} // namespace tambrelle
