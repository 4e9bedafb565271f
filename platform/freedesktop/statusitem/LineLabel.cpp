#include "platform/freedesktop/statusitem/LineLabel.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tambrelle {

LineLabel::LineLabel(Qt::WindowFlags flags) : QLabel(nullptr, flags) {
    setTextFormat(Qt::PlainText);
    setWindowTitle(QStringLiteral("Tambrelle"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_QuitOnClose, false);
}

void LineLabel::setLine(const QString& text) {
    line.setText(text);
    const QSize room = line.size().grownBy(contentsMargins());
    if (room != size())
        setFixedSize(room);
    setText(text);
}

void LineLabel::setInk(const QColor& color) {
    QPalette inks = palette();
    inks.setColor(QPalette::WindowText, color);
    setPalette(inks);
}

void LineLabel::setPaper(const QColor& ground, const QColor& edge) {
    paper = ground;
    paperEdge = edge;
    update();
}

void LineLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    if (paper.isValid()) {
        // Of whole device pixels, or its sides would differ at fractional scales.
        const double edge = std::max(1.0, std::floor(devicePixelRatioF())) / devicePixelRatioF();
        const QRectF slip = rect();
        painter.fillRect(slip, paperEdge);
        painter.fillRect(slip.adjusted(edge, edge, -edge, -edge), paper);
    }
    painter.setPen(palette().color(QPalette::WindowText));
    line.draw(painter, contentsRect());
}

void LineLabel::moveEvent(QMoveEvent* event) {
    QLabel::moveEvent(event);
    emit moved(pos());
}

void LineLabel::mousePressEvent(QMouseEvent* event) {
    pressed = event->button() == Qt::LeftButton;
    pulled = false;
    pressedAt = event->globalPosition().toPoint();
    grip = event->position().toPoint();
}

void LineLabel::mouseMoveEvent(QMouseEvent* event) {
    const QPoint pointer = event->globalPosition().toPoint();
    pulled = pulled || (pointer - pressedAt).manhattanLength() >= QApplication::startDragDistance();
    if (pressed && pulled)
        emit dragged(pointer - grip);
}

void LineLabel::mouseReleaseEvent(QMouseEvent* event) {
    if (pressed && !pulled && event->button() == Qt::LeftButton)
        emit clicked(event->globalPosition().toPoint());
    pressed = false;
}

} // namespace tambrelle
