#include "platform/freedesktop/statusitem/MeasuredLine.h"

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <gtest/gtest.h>

namespace tambrelle {
namespace {

struct Paint {
    QColor ink = Qt::white;
    QColor ground = Qt::black;
    double ratio = 1; ///< device pixels for each logical one
};

QImage drawn(MeasuredLine& line, const Paint& paint = {}) {
    QImage image((QSizeF(line.size()) * paint.ratio).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(paint.ratio);
    image.fill(paint.ground);
    QPainter painter(&image);
    painter.setPen(paint.ink);
    line.draw(painter, QRect(QPoint(0, 0), line.size()));
    return image;
}

QImage drawn(const char* text, const Paint& paint = {}) {
    MeasuredLine line;
    line.setText(QString::fromUtf8(text));
    return drawn(line, paint);
}

int brightest(const QImage& image) {
    int most = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            most = std::max(most, qGray(image.pixel(x, y)));
    }
    return most;
}

TEST(MeasuredLineTest, DrawsASymbolWithoutColoursOfItsOwnInTheInk) {
    EXPECT_GT(brightest(drawn("\u0416")), 200);
}

/// The pixels that are not of the ground, where the line has only `height`.
int inked(MeasuredLine& line, int height, double ratio) {
    const QSize room(line.size().width(), height);
    QImage image((QSizeF(room) * ratio).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::black);
    QPainter painter(&image);
    painter.setPen(Qt::white);
    line.draw(painter, QRect(QPoint(0, 0), room));
    painter.end();
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixel(x, y) != qRgb(0, 0, 0) ? 1 : 0;
    }
    return count;
}

TEST(MeasuredLineTest, IsWholeInItsLeastHeight) {
    MeasuredLine line;
    EXPECT_EQ(line.leastHeight(), 0);
    line.setText(QStringLiteral("🍇 7 Vendémiaire · Septidi · 5:00"));
    for (const double ratio : {1.0, 1.25, 2.0}) {
        const int whole = inked(line, 2 * line.size().height(), ratio);
        EXPECT_EQ(inked(line, line.leastHeight(), ratio), whole) << ratio;
        EXPECT_LT(inked(line, line.leastHeight() - 5, ratio), whole) << ratio;
    }
}

// The symbol alone, which is kept as a picture.
TEST(MeasuredLineTest, FollowsTheInkAndTheScale) {
    const Paint inverse{.ink = Qt::black, .ground = Qt::white};
    const Paint large{.ratio = 2};
    MeasuredLine line;
    line.setText(QStringLiteral("\u0416"));
    const QImage atFirst = drawn(line);
    EXPECT_EQ(drawn(line, inverse), drawn("\u0416", inverse));
    EXPECT_EQ(drawn(line, large), drawn("\u0416", large));
    EXPECT_EQ(drawn(line), atFirst);
}

TEST(MeasuredLineTest, IsAsItWouldBeHadItNotShownAnotherBefore) {
    MeasuredLine line;
    for (const char* text :
         {"\u0416 23 Brumaire \u00b7 Tridi \u00b7 5:00", "\u0416 23 Brumaire \u00b7 Tridi \u00b7 5:01",
          "\u0416 5:01", "\u0416 23", "\u0416 23 Brum.", "\u0416 1 Vent\u00f4.", "\u0416"}) {
        line.setText(QString::fromUtf8(text));
        EXPECT_EQ(drawn(line), drawn(text)) << text;
    }
}

TEST(MeasuredLineTest, IsAsWideWhateverTheDigits) {
    MeasuredLine line;
    line.setText(QStringLiteral("\u0416 1:11"));
    const QSize ones = line.size();
    line.setText(QStringLiteral("\u0416 8:08"));
    EXPECT_EQ(line.size(), ones);
    line.setText(QStringLiteral("\u0416 88:08"));
    EXPECT_GT(line.size().width(), ones.width());
}

TEST(MeasuredLineTest, IsNothingBeforeThereIsAText) {
    EXPECT_EQ(MeasuredLine().size(), QSize(0, 0));
}

} // namespace
} // namespace tambrelle
