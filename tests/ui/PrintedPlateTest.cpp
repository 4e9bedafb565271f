#include "ui/panel/PrintedPlate.h"

#include "tests/support/Printers.h"
#include "ui/Palette.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tambrelle {
namespace {

class PrintedPlateTest : public ::testing::Test {
protected:
    PrintedPlateTest() {
        engrave();
        plate.setFile(file);
    }

    void engrave() const {
        QImage image(40, 40, QImage::Format_RGB32);
        image.fill(Qt::black);
        ASSERT_TRUE(image.save(file));
    }
    [[nodiscard]] QColor middleOf(const PictureFrame& frame) {
        const QImage print = plate.printed(frame).toImage();
        return print.pixelColor(print.width() / 2, print.height() / 2);
    }

    QTemporaryDir folder;
    QString file = folder.filePath("plate.png");
    PrintedPlate plate;
    PictureFrame day{.size = {28, 28}, .devicePixelRatio = 1.5, .field = Palette::parchment};
    PictureFrame night{.size = {28, 28}, .devicePixelRatio = 1.5, .field = Palette::agedTan};
};

TEST_F(PrintedPlateTest, IsPrintedOnceForAFrame) {
    EXPECT_EQ(middleOf(day), Qt::black);
    ASSERT_TRUE(QFile::remove(file));
    EXPECT_EQ(middleOf(day), Qt::black) << "the file has been read again";
}

TEST_F(PrintedPlateTest, IsReadAgainForAnotherFrame) {
    EXPECT_EQ(middleOf(day), Qt::black);
    EXPECT_EQ(middleOf(night), Qt::black);
    day.size = {14, 14};
    EXPECT_EQ(middleOf(day), Qt::black);
}

TEST_F(PrintedPlateTest, LooksForALostFileOnceAndShowsTheField) {
    EXPECT_EQ(middleOf(day), Qt::black);
    ASSERT_TRUE(QFile::remove(file));
    EXPECT_EQ(middleOf(night), Palette::agedTan);
    engrave();
    EXPECT_EQ(middleOf(night), Palette::agedTan) << "the file has been looked for again";
    EXPECT_EQ(plate.printed(night).devicePixelRatio(), 1.5);
}

TEST_F(PrintedPlateTest, IsEmptyWithoutAReadableFile) {
    EXPECT_FALSE(plate.isEmpty());
    plate.setFile(folder.filePath("nowhere.png"));
    EXPECT_TRUE(plate.isEmpty());
    plate.setFile(file);
    EXPECT_FALSE(plate.isEmpty());
    plate.setFile(QString());
    EXPECT_TRUE(plate.isEmpty());
}

} // namespace
} // namespace tambrelle
