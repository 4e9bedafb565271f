#include "ui/settings/ToggleRow.h"

#include "tests/support/EventLoop.h"
#include "tests/support/Printers.h"
#include "ui/settings/FormMetrics.h"

#include <QImage>

#include <gtest/gtest.h>

namespace tambrelle {
namespace {

/// What differs between two pictures of one size.
QRect difference(const QImage& one, const QImage& other) {
    QRect box;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            if (one.pixel(x, y) != other.pixel(x, y))
                box |= QRect(x, y, 1, 1);
        }
    }
    return box;
}

TEST(ToggleRowTest, ShowsTheFocusAllAroundItsSwitch) {
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        ToggleRow row(QStringLiteral("Launch at login"));
        row.setLayoutDirection(direction);
        row.resize(300, row.sizeHint().height());
        row.show();
        row.activateWindow();
        row.setFocus(Qt::TabFocusReason);
        ASSERT_TRUE(test::waitUntil([&row] { return row.hasFocus(); }));
        const QImage focused = row.grab().toImage();
        row.clearFocus();
        const QRect ring = difference(focused, row.grab().toImage());
        const QSizeF track = QSizeF(FormMetrics::switchSize) * row.devicePixelRatioF();
        EXPECT_GT(ring.height(), track.height());
        EXPECT_NEAR(ring.width() - track.width(), ring.height() - track.height(), 1)
            << "as far beside the switch as above and below it";
    }
}

} // namespace
} // namespace tambrelle
