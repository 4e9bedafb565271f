#include "ui/TextLabel.h"

#include "tests/support/EventLoop.h"
#include "tests/support/Printers.h"

#include <QAccessible>
#include <QApplication>
#include <QEvent>
#include <QFontMetricsF>
#include <QImage>
#include <QVBoxLayout>

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
    const QImage lastLine = grabbed(label).copy(0, line, 150, line);
    int lastInk = -1;
    for (int x = 0; x < lastLine.width(); ++x) {
        if (inkInColumn(lastLine, x))
            lastInk = x;
    }
    EXPECT_LT(lastInk, 149) << "the ellipsis ends within the place";
    EXPECT_GT(lastInk, 149 - 20) << "and the words before it take what there is";
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

/// Counts what a widget is asked to do.
class Efforts final : public QObject {
public:
    explicit Efforts(QWidget* widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        layouts += event->type() == QEvent::LayoutRequest ? 1 : 0;
        return false;
    }

    int paints = 0;
    int layouts = 0;
};

TEST(TextLabelTest, TheSameTextChangesNothing) {
    QWidget window;
    auto* label = new TextLabel(TypeScale::decimalTime, Ink::primary);
    QVBoxLayout column(&window);
    column.addWidget(label);
    label->setText("5:00:00");
    window.show();
    test::runQueued();
    const Efforts ofLabel(label);
    const Efforts ofWindow(&window);
    label->setText("5:00:00");
    test::runQueued();
    EXPECT_EQ(ofLabel.paints, 0);
    EXPECT_EQ(ofWindow.layouts, 0);
    label->setText("5:00:01");
    EXPECT_TRUE(test::waitUntil([&ofLabel] { return ofLabel.paints == 1; }));
    EXPECT_EQ(ofWindow.layouts, 0) << "it is as wide as before";
    label->setText("10:00:00");
    EXPECT_TRUE(test::waitUntil([&ofWindow] { return ofWindow.layouts > 0; }));
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

TEST(TypeScaleTest, FollowsTheDesktopsTextSize) {
    // With the toolkit's scaling off a resolution half as large again enlarges text alone, else all there is.
    const double enlarged = qEnvironmentVariableIntValue("QT_FONT_DPI") == 144 ? 1.5 : 1;
    const bool large = enlarged > 1 && qEnvironmentVariable("QT_ENABLE_HIGHDPI_SCALING") == "0";
    EXPECT_DOUBLE_EQ(textScale(), large ? enlarged : 1);
    EXPECT_DOUBLE_EQ(textScale() * qApp->devicePixelRatio(), enlarged);
    EXPECT_EQ(font(TypeScale::body).pixelSize(), large ? 20 : 13);
    EXPECT_EQ(font(TypeScale::monthName).letterSpacing(), large ? 3 : 2);
    TextLabel label(TypeScale::decimalTime, Ink::primary);
    label.setText("5:00:00");
    QFont plain(font(TypeScale::decimalTime));
    plain.setPixelSize(TypeScale::decimalTime.size);
    const double growth = label.sizeHint().height() / QFontMetricsF(plain).height();
    EXPECT_NEAR(growth, large ? 1.5 : 1, 0.1) << "what is drawn grows with it";
}

TEST(TypeScaleTest, FiguresStandStill) {
    for (const TypeStyle& style : {TypeScale::decimalTime, TypeScale::standardTime, TypeScale::dayCount}) {
        const QFontMetricsF metrics(font(style));
        for (char digit = '1'; digit <= '9'; ++digit)
            EXPECT_EQ(metrics.horizontalAdvance(QLatin1Char(digit)), metrics.horizontalAdvance('0'));
    }
}

TEST(TextLabelTest, TakesNoRoomBeforeItHasAText) {
    TextLabel label(TypeScale::body, Ink::primary);
    EXPECT_EQ(label.sizeHint(), QSize(0, 0));
    label.setText("5:00");
    EXPECT_GT(label.sizeHint().height(), 0);
}

TEST(TypeScaleTest, NamesTheInstalledFontThatAnAliasStandsFor) {
    const QString alias = QStringLiteral("serif");
    const QStringList before = QFont::substitutes(alias);
    QFont::removeSubstitutions(alias);
    EXPECT_EQ(font(TypeScale::slogan).family(), alias);
    const QStringList installed{QStringLiteral("some antiqua"), QStringLiteral("some emoji")};
    QFont::insertSubstitutions(alias, installed);
    EXPECT_EQ(font(TypeScale::slogan).families(), installed);
    EXPECT_TRUE(font(TypeScale::slogan).italic());
    QFont::removeSubstitutions(alias);
    QFont::insertSubstitutions(alias, before);
}

} // namespace
} // namespace tambrelle
