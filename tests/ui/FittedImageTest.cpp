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

TEST(FittedImageTest, IsEmptyWhereTheFileCannotBeRead) {
    const QImage nothing = drawn(QStringLiteral("/nowhere.png"), AppTheme::light);
    EXPECT_EQ(nothing.pixelColor(14, 14), panelPalette(AppTheme::light).color(QPalette::Window));
}

} // namespace
} // namespace tambrelle
