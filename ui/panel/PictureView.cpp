#include "ui/panel/PictureView.h"

#include "ui/Ink.h"
#include "ui/TextLabel.h"
#include "ui/panel/PanelMetrics.h"

#include <QPainter>
#include <QPainterPath>
#include <QVBoxLayout>

namespace tambrelle {

QImage composedPicture(const QImage& plate, const PictureFrame& frame) {
    const QSize pixels = (QSizeF(frame.size) * frame.devicePixelRatio).toSize();
    QImage image(pixels, QImage::Format_RGB32);
    image.fill(frame.field);
    if (plate.isNull())
        return image;
    // A palette's few colours would be dithered when scaled.
    const QImage fitted = plate.convertToFormat(QImage::Format_RGB32)
                              .scaled(pixels, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_Multiply);
    painter.drawImage((pixels.width() - fitted.width()) / 2, (pixels.height() - fitted.height()) / 2, fitted);
    painter.end();
    image.setDevicePixelRatio(frame.devicePixelRatio);
    return image;
}

PictureView::PictureView(QWidget* parent)
    : QWidget(parent), emojiLabel(new TextLabel(TypeScale::pictureEmoji, Ink::primary)) {
    setFixedHeight(PanelMetrics::pictureHeight);
    auto* center = new QVBoxLayout(this);
    center->setContentsMargins({});
    center->addWidget(emojiLabel, 0, Qt::AlignCenter);
}

void PictureView::present(const std::optional<QString>& file, const QString& emoji) {
    if (!file || *file != shownFile) {
        decoded = file ? QImage(*file) : QImage();
        shownFile = decoded.isNull() ? QString() : *file;
        composed = {};
        update();
    }
    // A large emoji is dear to measure.
    if (shownFile.isEmpty())
        emojiLabel->setText(emoji);
    emojiLabel->setVisible(shownFile.isEmpty());
}

void PictureView::resizeEvent(QResizeEvent*) {
    composed = {};
}

const QPixmap& PictureView::picture() {
    const QColor field = color(palette(), Ink::pictureField);
    if (composed.isNull() || composedField != field || composed.devicePixelRatio() != devicePixelRatioF()) {
        if (decoded.isNull())
            decoded = QImage(shownFile);
        composed = QPixmap::fromImage(composedPicture(
            decoded, {.size = size(), .devicePixelRatio = devicePixelRatioF(), .field = field}));
        composedField = field;
        decoded = {};
    }
    return composed;
}

void PictureView::paintEvent(QPaintEvent*) {
    constexpr double radius = PanelMetrics::pictureCornerRadius;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!shownFile.isEmpty()) {
        // A brush's edge is smooth where a clip's is not.
        painter.setPen(Qt::NoPen);
        QBrush brush(picture());
        painter.setBrush(brush);
        painter.drawRoundedRect(rect(), radius, radius);
        painter.setBrush(Qt::NoBrush);
    }
    constexpr double inset = PanelMetrics::pictureOutlineWidth / 2.0;
    painter.setPen(QPen(color(palette(), Ink::pictureOutline), PanelMetrics::pictureOutlineWidth));
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), radius - inset,
                            radius - inset);
}

} // namespace tambrelle
