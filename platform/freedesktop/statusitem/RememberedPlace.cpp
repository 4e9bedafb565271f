#include "platform/freedesktop/statusitem/RememberedPlace.h"

#include "platform/UserDefaults.h"

#include <QStringList>

#include <cmath>

namespace tambrelle {

namespace {

/// No desktop reaches farther, logical pixels; and sums of such numbers are still numbers.
constexpr int farthest = 32767;

const QString key = QStringLiteral("floatingLabelPlace");

} // namespace

std::optional<QPoint> RememberedPlace::corner() const {
    const QStringList numbers = defaults.string(key).value_or(QString()).split(QLatin1Char(' '));
    if (numbers.size() != 2)
        return std::nullopt;
    bool isX = false;
    bool isY = false;
    const QPoint corner(numbers[0].toInt(&isX), numbers[1].toInt(&isY));
    const bool near = std::abs(static_cast<double>(corner.x())) <= farthest &&
                      std::abs(static_cast<double>(corner.y())) <= farthest;
    return isX && isY && near ? std::optional(corner) : std::nullopt;
}

void RememberedPlace::remember(QPoint corner) {
    defaults.setString(key, QStringLiteral("%1 %2").arg(corner.x()).arg(corner.y()));
}

} // namespace tambrelle
