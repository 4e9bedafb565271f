#include "ui/panel/FittedImage.h"

#include "tests/support/Printers.h"
#include "ui/Ink.h"
#include "ui/Palette.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tambrelle {
namespace {

QImage drawn(const QString& file, AppTheme theme) {
    FittedImage image(file);
    image.setPalette(panelPalette(theme));
    image.setAutoFillBackground(true);
    image.resize(28, 28);
    return image.grab().toImage();
}

TEST(FittedImageTest, WhitePaperIsTheThemesField) {
    const QTemporaryDir folder;
    QImage paper(56, 50, QImage::Format_RGB32);
    paper.fill(Qt::white);
    paper.setPixelColor(28, 25, Qt::black);
    const QString file = folder.filePath("paper.png");
    ASSERT_TRUE(paper.save(file));
    for (const auto& [theme, field] : {std::pair(AppTheme::light, Palette::parchment),
                                       std::pair(AppTheme::sepiaNight, Palette::agedTan)}) {
        const QImage picture = drawn(file, theme);
        EXPECT_EQ(picture.pixelColor(8, 8), field);
        EXPECT_EQ(picture.pixelColor(14, 1), field) << "beside the picture, which is wider than high";
    }
}

TEST(FittedImageTest, APlateWithAPaletteIsNotDithered) {
    const QTemporaryDir folder;
    QImage wood(576, 520, QImage::Format_Indexed8);
    wood.setColorTable({qRgb(255, 255, 255), qRgb(138, 107, 69)});
    wood.fill(1);
    wood.setPixel(0, 0, 0);
    const QString file = folder.filePath("wood.png");
    ASSERT_TRUE(wood.save(file));
    const QImage picture = drawn(file, AppTheme::light);
    const QColor middle = picture.pixelColor(14, 14);
    EXPECT_GT(middle.red(), middle.green());
    EXPECT_GT(middle.green(), middle.blue());
    for (int y = 5; y < 23; ++y) {
        for (int x = 5; x < 23; ++x)
            ASSERT_EQ(picture.pixelColor(x, y), middle) << "at " << x << ", " << y;
    }
}

TEST(FittedImageTest, IsEmptyWhereTheFileCannotBeRead) {
    const QImage nothing = drawn(QStringLiteral("/nowhere.png"), AppTheme::light);
    EXPECT_EQ(nothing.pixelColor(14, 14), panelPalette(AppTheme::light).color(QPalette::Window));
}

} // namespace
} // namespace tambrelle
