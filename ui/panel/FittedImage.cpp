#include "ui/panel/FittedImage.h"

#include "ui/Symbol.h"

#include <QImage>
#include <QPainter>

namespace tambrelle {

FittedImage::FittedImage(const QString& file, QWidget* parent) : QWidget(parent), file(file) {}

void FittedImage::paintEvent(QPaintEvent*) {
    if (file.isEmpty())
        return;
    const QSize pixels = (QSizeF(size()) * devicePixelRatioF()).toSize();
    if (fittedFor != pixels) {
        fittedFor = pixels;
        const QImage image(file);
        fitted =
            image.isNull()
                ? QPixmap()
                : QPixmap::fromImage(image.scaled(pixels, Qt::KeepAspectRatio, Qt::SmoothTransformation));
        fitted.setDevicePixelRatio(devicePixelRatioF());
    }
    if (fitted.isNull())
        return;
    const QSizeF shown = fitted.deviceIndependentSize();
    QPainter painter(this);
    drawAligned(painter, {(width() - shown.width()) / 2, (height() - shown.height()) / 2}, fitted);
}

} // namespace tambrelle
