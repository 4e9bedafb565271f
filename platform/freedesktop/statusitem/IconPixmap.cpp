#include "platform/freedesktop/statusitem/IconPixmap.h"

#include <QDBusMetaType>
#include <QtEndian>

namespace tambrelle {

IconPixmap IconPixmap::fromImage(const QImage& image) {
    const QImage argb = image.convertToFormat(QImage::Format_ARGB32);
    IconPixmap pixmap{argb.width(), argb.height(), QByteArray()};
    pixmap.argb.reserve(static_cast<qsizetype>(argb.sizeInBytes()));
    for (int y = 0; y < argb.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(argb.constScanLine(y));
        for (int x = 0; x < argb.width(); ++x) {
            const quint32 bigEndian = qToBigEndian(line[x]);
            pixmap.argb.append(reinterpret_cast<const char*>(&bigEndian), sizeof bigEndian);
        }
    }
    return pixmap;
}

QDBusArgument& operator<<(QDBusArgument& argument, const IconPixmap& pixmap) {
    argument.beginStructure();
    argument << pixmap.width << pixmap.height << pixmap.argb;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, IconPixmap& pixmap) {
    argument.beginStructure();
    argument >> pixmap.width >> pixmap.height >> pixmap.argb;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const ToolTip& toolTip) {
    argument.beginStructure();
    argument << toolTip.iconName << toolTip.iconPixmaps << toolTip.title << toolTip.body;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, ToolTip& toolTip) {
    argument.beginStructure();
    argument >> toolTip.iconName >> toolTip.iconPixmaps >> toolTip.title >> toolTip.body;
    argument.endStructure();
    return argument;
}

void registerNotifierTypes() {
    qDBusRegisterMetaType<IconPixmap>();
    qDBusRegisterMetaType<IconPixmaps>();
    qDBusRegisterMetaType<ToolTip>();
}

} // namespace tambrelle
