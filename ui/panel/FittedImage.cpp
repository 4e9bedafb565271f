#include "ui/panel/FittedImage.h"

#include "ui/panel/PanelMetrics.h"

#include <QPainter>

namespace tambrelle {

FittedImage::FittedImage(const QString& file, QWidget* parent) : QWidget(parent) {
    plate.setFile(file);
}

void FittedImage::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    plate.draw(painter, *this, PanelMetrics::smallPictureCornerRadius);
}

} // namespace tambrelle
