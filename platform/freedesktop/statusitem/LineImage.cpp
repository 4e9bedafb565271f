#include "platform/freedesktop/statusitem/LineImage.h"

#include "platform/freedesktop/statusitem/LineStyle.h"
#include "platform/freedesktop/statusitem/MeasuredLine.h"

#include <QPainter>

namespace tambrelle {

QImage lineImage(const QString& text, int scale) {
    MeasuredLine line;
    line.setText(text);
    const QSize size = line.size();
    QImage image(size * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    const QRect place(QPoint(0, 0), size);

    QColor halo = LineStyle::darkInk;
    halo.setAlphaF(0.35F);
    painter.setPen(halo);
    for (const QPoint offset : {QPoint(-1, 0), QPoint(1, 0), QPoint(0, -1), QPoint(0, 1)})
        line.draw(painter, place.translated(offset));
    painter.setPen(LineStyle::lightInk);
    line.draw(painter, place);
    return image;
}

} // namespace tambrelle
