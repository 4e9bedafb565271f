#include "ui/panel/PrintedPlate.h"

#include "ui/Ink.h"

#include <QFile>
#include <QImageReader>
#include <QPainter>
#include <QWidget>

namespace tambrelle {

QImage composedPicture(const QImage& plate, const PictureFrame& frame) {
    const QSize pixels = (QSizeF(frame.size) * frame.devicePixelRatio).toSize();
    QImage image(pixels, QImage::Format_RGB32);
    image.fill(frame.field);
    if (!plate.isNull()) {
        // A palette's few colours would be dithered when scaled.
        const QImage fitted = plate.convertToFormat(QImage::Format_RGB32)
                                  .scaled(pixels, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        QPainter painter(&image);
        painter.setCompositionMode(QPainter::CompositionMode_Multiply);
        painter.drawImage((pixels.width() - fitted.width()) / 2, (pixels.height() - fitted.height()) / 2,
                          fitted);
    }
    image.setDevicePixelRatio(frame.devicePixelRatio);
    return image;
}

namespace {

QImage decodedFrom(const QString& file) {
    QFile source(file);
    // The toolkit warns of a name that is empty.
    if (file.isEmpty() || !source.open(QIODevice::ReadOnly))
        return {};
    // To guess the format, it would load the plugins of all others.
    QImageReader reader(&source, "png");
    reader.setAutoDetectImageFormat(false);
    return reader.read();
}

} // namespace

void PrintedPlate::setFile(const QString& next) {
    if (next == file)
        return;
    decoded = decodedFrom(next);
    file = decoded.isNull() ? QString() : next;
    print = {};
    printedFor.reset();
}

const QPixmap& PrintedPlate::printed(const PictureFrame& frame) {
    if (printedFor != frame) {
        if (decoded.isNull())
            decoded = decodedFrom(file);
        print = QPixmap::fromImage(composedPicture(decoded, frame));
        printedFor = frame;
        decoded = {};
    }
    return print;
}

void PrintedPlate::draw(QPainter& painter, const QWidget& widget, double cornerRadius) {
    if (isEmpty())
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    // A brush's edge is smooth where a clip's is not.
    painter.setPen(Qt::NoPen);
    painter.setBrush(printed({.size = widget.size(),
                              .devicePixelRatio = widget.devicePixelRatioF(),
                              .field = color(widget.palette(), Ink::pictureField)}));
    painter.drawRoundedRect(widget.rect(), cornerRadius, cornerRadius);
    painter.restore();
}

} // namespace tambrelle
