#pragma once

#include <QByteArray>
#include <QDBusArgument>
#include <QImage>
#include <QList>
#include <QMetaType>

namespace tambrelle {

/// A picture as the status notifier protocol carries it: 32-bit ARGB, big endian, not premultiplied.
struct IconPixmap {
    int width = 0;
    int height = 0;
    QByteArray argb;

    bool operator==(const IconPixmap&) const = default;

    [[nodiscard]] static IconPixmap fromImage(const QImage& image);
};

/// One picture in several sizes.
using IconPixmaps = QList<IconPixmap>;

/// What a bar shows under the pointer; `title` and `body` are plain text.
struct ToolTip {
    QString iconName;
    IconPixmaps iconPixmaps;
    QString title;
    QString body;
};

QDBusArgument& operator<<(QDBusArgument& argument, const IconPixmap& pixmap);
const QDBusArgument& operator>>(const QDBusArgument& argument, IconPixmap& pixmap);
QDBusArgument& operator<<(QDBusArgument& argument, const ToolTip& toolTip);
const QDBusArgument& operator>>(const QDBusArgument& argument, ToolTip& toolTip);

/// Makes the two types known to the bus; may be called more than once.
void registerNotifierTypes();

} // namespace tambrelle

Q_DECLARE_METATYPE(tambrelle::IconPixmap)
Q_DECLARE_METATYPE(tambrelle::ToolTip)
