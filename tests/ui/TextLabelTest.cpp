#include "ui/TextLabel.h"

#include "tests/support/Printers.h"

#include <QAccessible>
#include <QImage>

#include <gtest/gtest.h>

#include <algorithm>

namespace tambrelle {
namespace {

const QString longText =
    "Ultra-radical words that go on for longer than any row of this panel has room for, and on";

QImage grabbed(TextLabel& label) {
    label.setPalette(panelPalette(AppTheme::light));
    return label.grab().toImage();
}

bool inkInColumn(const QImage& image, int x) {
    for (int y = 0; y < image.height(); ++y) {
        if (qAlpha(image.pixel(x, y)) != 0 && image.pixelColor(x, y) != image.pixelColor(0, 0))
            return true;
    }
    return false;
}

/// From the top of the highest letter to the bottom of the lowest one.
int heightOfInk(const QImage& image) {
    int first = image.height();
    int last = -1;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) != image.pixelColor(0, 0)) {
                first = std::min(first, y);
                last = y;
            }
        }
    }
    return last - first + 1;
}

TEST(TextLabelTest, AWholeTextIsNeverNarrower) {
    TextLabel label(TypeScale::body, Ink::primary);
    label.setText("Nov 15, 2025");
    EXPECT_EQ(label.minimumSizeHint(), label.sizeHint());
    EXPECT_FALSE(label.hasHeightForWidth());
}

TEST(TextLabelTest, AWrappedTextTakesTheLinesThatItNeeds) {
    TextLabel label(TypeScale::caption, Ink::primary, TextFit::wrapped());
    label.setText(longText);
    const int line = label.sizeHint().height();
    EXPECT_EQ(label.heightForWidth(label.sizeHint().width()), line);
    EXPECT_EQ(label.heightForWidth(label.sizeHint().width() - 10), 2 * line);
    EXPECT_GE(label.heightForWidth(120), 4 * line);
}

TEST(TextLabelTest, TheLastAllowedLineIsElided) {
    TextLabel label(TypeScale::caption, Ink::primary, TextFit::wrapped(2));
    label.setText(longText);
    const int line = label.sizeHint().height();
    EXPECT_EQ(label.heightForWidth(150), 2 * line);
    label.resize(150, 2 * line);
    EXPECT_FALSE(inkInColumn(grabbed(label), 149)) << "the ellipsis ends within the place";
}

TEST(TextLabelTest, NoLineHoldsTheLastWordAlone) {
    TextLabel label(TypeScale::fullDate, Ink::primary, TextFit::wrapped());
    label.setText("28 Vendémiaire an CCXXXVIII");
    // One pixel too narrow for the whole: "an" goes down with the year, so the first line becomes far
    // shorter.
    TextLabel rest(TypeScale::fullDate, Ink::primary);
    rest.setText("an CCXXXVIII");
    const int line = label.sizeHint().height();
    label.resize(label.sizeHint().width() - 1, 2 * line);
    const QImage image = grabbed(label);
    int lastInk = 0;
    for (int x = 0; x < image.width(); ++x) {
        for (int y = line; y < 2 * line; ++y) {
            if (image.pixelColor(x, y) != image.pixelColor(image.width() - 1, image.height() - 1))
                lastInk = x;
        }
    }
    EXPECT_NEAR(lastInk, rest.sizeHint().width(), 4);
}

TEST(TextLabelTest, AShrunkTextStaysOnItsLineAndInItsPlace) {
    TextLabel label(TypeScale::monthName, Ink::primary, TextFit::shrunk());
    label.setText("SANSCULOTTIDES");
    const QSize whole = label.sizeHint();
    EXPECT_LT(label.minimumSizeHint().width(), whole.width());
    for (const double part : {0.95, 0.8, 0.65}) {
        label.resize(static_cast<int>(whole.width() * part), whole.height());
        const QImage image = grabbed(label);
        EXPECT_FALSE(inkInColumn(image, image.width() - 1)) << part;
        bool filled = false;
        for (int x = image.width() * 3 / 4; x < image.width(); ++x)
            filled |= inkInColumn(image, x);
        EXPECT_TRUE(filled) << part;
    }
}

TEST(TextLabelTest, AShrunkTextIsElidedWhereItWouldBecomeTooSmall) {
    TextLabel label(TypeScale::monthName, Ink::primary, TextFit::shrunk());
    label.setText("SANSCULOTTIDES");
    const QSize whole = label.sizeHint();
    label.resize(label.minimumSizeHint().width(), whole.height());
    const int smallest = heightOfInk(grabbed(label));
    EXPECT_LT(smallest, heightOfInk([&] {
                  TextLabel free(TypeScale::monthName, Ink::primary);
                  free.setText("SANSCULOTTIDES");
                  return grabbed(free);
              }()));
    label.resize(whole.width() / 3, whole.height());
    const QImage elided = grabbed(label);
    EXPECT_EQ(heightOfInk(elided), smallest) << "no smaller than that";
    EXPECT_FALSE(inkInColumn(elided, elided.width() - 1)) << "the ellipsis ends within the place";
}

TEST(TextLabelTest, AnElidedSloganIsReadInFull) {
    TextLabel label(TypeScale::slogan, Ink::tertiary, TextFit::elided());
    label.setText(longText);
    label.resize(100, label.sizeHint().height());
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&label);
    ASSERT_NE(interface, nullptr);
    EXPECT_EQ(interface->text(QAccessible::Name), longText);
    EXPECT_EQ(interface->role(), QAccessible::StaticText);
}

TEST(TextLabelTest, TheSameTextChangesNothing) {
    TextLabel label(TypeScale::body, Ink::primary);
    label.setText("5:00:00");
    const QSize size = label.sizeHint();
    label.setText("5:00:00");
    EXPECT_EQ(label.sizeHint(), size);
}

TEST(TypeScaleTest, SetsPixelsWeightsAndTracking) {
    const QFont month = font(TypeScale::monthName);
    EXPECT_EQ(month.pixelSize(), 20);
    EXPECT_EQ(month.weight(), QFont::Bold);
    EXPECT_EQ(month.letterSpacing(), 2);
    EXPECT_EQ(font(TypeScale::today).letterSpacing(), 1.5);
    EXPECT_TRUE(font(TypeScale::slogan).italic());
    EXPECT_TRUE(QFontInfo(font(TypeScale::decimalTime)).fixedPitch());
    EXPECT_NE(QFontInfo(font(TypeScale::slogan)).family(), QFontInfo(font(TypeScale::caption)).family());
}

TEST(TypeScaleTest, FiguresStandStill) {
    for (const TypeStyle& style : {TypeScale::decimalTime, TypeScale::standardTime, TypeScale::dayCount}) {
        const QFontMetricsF metrics(font(style));
        for (char digit = '1'; digit <= '9'; ++digit)
            EXPECT_EQ(metrics.horizontalAdvance(QLatin1Char(digit)), metrics.horizontalAdvance('0'));
    }
}

} // namespace
} // namespace tambrelle
