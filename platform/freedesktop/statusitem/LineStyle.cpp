#include "platform/freedesktop/statusitem/LineStyle.h"

#include <QFontDatabase>
#include <QFontMetrics>
#include <QString>

namespace tambrelle::LineStyle {

namespace {

constexpr int bodyPixelSize = 13;

/// Perceived lightness (ITU-R BT.601 weights, 0 to 255) from which dark ink reads better than light.
constexpr int lightGround = 128;

} // namespace

QFont font() {
    QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    fixed.setPixelSize(bodyPixelSize);
    return fixed;
}

QSize sizeOf(const QString& line) {
    const QFontMetrics metrics(font());
    return {metrics.horizontalAdvance(line) + 2 * padding, metrics.height()};
}

QColor inkOn(const QColor& ground) {
    return qGray(ground.rgb()) < lightGround ? lightInk : darkInk;
}

} // namespace tambrelle::LineStyle
