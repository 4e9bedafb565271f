#include "ui/panel/FittedImage.h"

#include "ui/Ink.h"
#include "ui/panel/PanelMetrics.h"
#include "ui/panel/PictureView.h"

#include <QImage>
#include <QPainter>

namespace tambrelle {

FittedImage::FittedImage(const QString& file, QWidget* parent) : QWidget(parent), file(file) {}

void FittedImage::paintEvent(QPaintEvent*) {
    if (file.isEmpty())
        return;
    const QColor field = color(palette(), Ink::pictureField);
    const PictureFrame frame{.size = size(), .devicePixelRatio = devicePixelRatioF(), .field = field};
    const QSize pixels = (QSizeF(size()) * devicePixelRatioF()).toSize();
    if (fittedFor != pixels || fittedField != field) {
        fittedFor = pixels;
        fittedField = field;
        const QImage image(file);
        fitted = image.isNull() ? QPixmap() : QPixmap::fromImage(composedPicture(image, frame));
    }
    if (fitted.isNull())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fitted);
    painter.drawRoundedRect(rect(), PanelMetrics::smallPictureCornerRadius,
                            PanelMetrics::smallPictureCornerRadius);
}

} // namespace tambrelle
