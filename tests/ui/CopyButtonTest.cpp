#include "ui/panel/CopyButton.h"

#include "tests/support/EventLoop.h"

#include <QImage>
#include <QPixmap>
#include <QProxyStyle>

#include <gtest/gtest.h>

namespace tambrelle {
namespace {

/// A desktop whose user wants movements of this length, in milliseconds.
class Movements final : public QProxyStyle {
public:
    explicit Movements(int length) : length(length) {}

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override {
        return hint == SH_Widget_Animation_Duration ? length
                                                    : QProxyStyle::styleHint(hint, option, widget, returned);
    }

private:
    int length;
};

/// What the button looks like right after a copy.
QImage rightAfterACopy(CopyButton& button) {
    button.showCopied(true);
    button.resize(button.sizeHint());
    return button.grab().toImage();
}

QImage whenDone() {
    CopyButton hidden;
    return rightAfterACopy(hidden);
}

TEST(CopyButtonTest, FadesInWhereMovementIsWelcome) {
    Movements style(200);
    CopyButton button;
    button.setStyle(&style);
    button.show();
    EXPECT_NE(rightAfterACopy(button), whenDone());
}

TEST(CopyButtonTest, FadesTheOldSymbolOut) {
    Movements style(200);
    CopyButton button;
    button.setStyle(&style);
    button.show();
    const QSize place = button.sizeHint();
    button.resize(place);
    const QImage before = button.grab().toImage();
    EXPECT_EQ(rightAfterACopy(button).copy(QRect(QPoint(), before.size())), before) << "it is gone at once";
    EXPECT_TRUE(test::waitUntil([&button] { return button.grab().toImage() == whenDone(); }));
}

TEST(CopyButtonTest, ChangesAtOnceWhereTheUserAskedForRest) {
    Movements style(0);
    CopyButton button;
    button.setStyle(&style);
    button.show();
    EXPECT_EQ(rightAfterACopy(button), whenDone());
}

} // namespace
} // namespace tambrelle
