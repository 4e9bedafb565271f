#include "ui/panel/Divider.h"

#include "ui/Ink.h"
#include "ui/panel/PanelMetrics.h"

#include <QPainter>

namespace tambrelle {

Divider::Divider(Qt::Orientation orientation, QWidget* parent) : QWidget(parent) {
    if (orientation == Qt::Horizontal)
        setFixedHeight(PanelMetrics::dividerThickness);
    else
        setFixedWidth(PanelMetrics::dividerThickness);
}

void Divider::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), color(palette(), Ink::divider));
}

} // namespace tambrelle
