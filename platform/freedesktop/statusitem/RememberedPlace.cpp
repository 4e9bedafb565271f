#include "platform/freedesktop/statusitem/RememberedPlace.h"

#include "platform/UserDefaults.h"

#include <QStringList>

namespace tambrelle {

namespace {

const QString key = QStringLiteral("floatingLabelPlace");

} // namespace

std::optional<QPoint> RememberedPlace::corner() const {
    const QStringList numbers = defaults.string(key).value_or(QString()).split(QLatin1Char(' '));
    if (numbers.size() != 2)
        return std::nullopt;
    bool isX = false;
    bool isY = false;
    const QPoint corner(numbers[0].toInt(&isX), numbers[1].toInt(&isY));
    return isX && isY ? std::optional(corner) : std::nullopt;
}

void RememberedPlace::remember(QPoint corner) {
    defaults.setString(key, QStringLiteral("%1 %2").arg(corner.x()).arg(corner.y()));
}

} // namespace tambrelle
