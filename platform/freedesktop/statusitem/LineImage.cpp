#include "platform/freedesktop/statusitem/LineImage.h"

#include "platform/freedesktop/statusitem/LineStyle.h"

#include <QPainter>

namespace tambrelle {

QImage lineImage(const QString& line, int scale) {
    const QSize size = LineStyle::sizeOf(line);
    QImage image(size * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    const QRect place(QPoint(0, 0), size);

    QColor halo = LineStyle::darkInk;
    halo.setAlphaF(0.35F);
    painter.setPen(halo);
    for (const QPoint offset : {QPoint(-1, 0), QPoint(1, 0), QPoint(0, -1), QPoint(0, 1)})
        LineStyle::draw(painter, place.translated(offset), line);
    painter.setPen(LineStyle::lightInk);
    LineStyle::draw(painter, place, line);
    return image;
}

} // namespace tambrelle
