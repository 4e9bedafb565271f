#include "ui/Symbol.h"

#include <QDir>
#include <QImage>

#include <gtest/gtest.h>

namespace tambrelle {
namespace {

const QStringList names{"chevron.left",   "chevron.right", "arrow.uturn.left",
                        "speaker.wave.2", "speaker.slash", "checkmark",
                        "doc.on.doc",     "gearshape",     "xmark.circle"};

QImage picture(const QString& name, int side, qreal ratio, const QColor& color = Qt::black) {
    return drawn({.name = name, .side = side}, color, ratio).toImage().convertToFormat(QImage::Format_ARGB32);
}

/// The rectangle of the pixels that are more than a trace.
QRect inkBounds(const QImage& image) {
    QRect bounds;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) > 32)
                bounds |= QRect(x, y, 1, 1);
        }
    }
    return bounds;
}

TEST(SymbolTest, EveryOneIsDrawnWithinItsSquareAtEveryScale) {
    for (const QString& name : names) {
        for (const qreal ratio : {1.0, 1.25, 1.5, 2.0}) {
            const QImage image = picture(name, 16, ratio);
            const int side = qRound(16 * ratio);
            EXPECT_EQ(image.size(), QSize(side, side));
            const QRect ink = inkBounds(image);
            EXPECT_GE(ink.height(), side * 0.5) << name.toStdString();
            for (int i = 0; i < side; ++i) {
                const int edge = std::max({qAlpha(image.pixel(i, 0)), qAlpha(image.pixel(i, side - 1)),
                                           qAlpha(image.pixel(0, i)), qAlpha(image.pixel(side - 1, i))});
                EXPECT_LT(edge, 200) << name.toStdString() << " is cut at " << ratio;
            }
        }
    }
}

TEST(SymbolTest, TakesTheColourOfItsInk) {
    for (const QString& name : names) {
        const QImage image = picture(name, 32, 1, QColor(10, 120, 230));
        bool full = false;
        for (int y = 0; y < 32; ++y) {
            for (int x = 0; x < 32; ++x) {
                if (qAlpha(image.pixel(x, y)) == 255) {
                    EXPECT_EQ(image.pixelColor(x, y), QColor(10, 120, 230)) << name.toStdString();
                    full = true;
                }
            }
        }
        EXPECT_TRUE(full) << name.toStdString();
    }
}

TEST(SymbolTest, AFaintInkStaysFaint) {
    const QImage image = picture("xmark.circle", 32, 1, QColor(0, 0, 0, 128));
    int strongest = 0;
    for (int x = 0; x < 32; ++x)
        strongest = std::max(strongest, qAlpha(image.pixel(x, 16)));
    EXPECT_NEAR(strongest, 128, 2);
}

TEST(SymbolDeathTest, AnUnknownNameStopsTheProgram) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(static_cast<void>(picture("no.such.symbol", 16, 1)), "a symbol without a drawing");
}

} // namespace
} // namespace tambrelle
