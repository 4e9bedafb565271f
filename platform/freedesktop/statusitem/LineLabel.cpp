#include "platform/freedesktop/statusitem/LineLabel.h"

#include "platform/freedesktop/statusitem/LineStyle.h"

#include <QApplication>
#include <QMouseEvent>

namespace tambrelle {

LineLabel::LineLabel(Qt::WindowFlags flags) : QLabel(nullptr, flags) {
    setFont(LineStyle::font());
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignCenter);
    setWindowTitle(QStringLiteral("Tambrelle"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_QuitOnClose, false);
}

void LineLabel::setLine(const QString& text) {
    const QMargins frame = contentsMargins();
    const QSize room = LineStyle::sizeOf(text).grownBy(frame);
    if (room != size())
        setFixedSize(room);
    setText(text);
}

void LineLabel::setInk(const QColor& color) {
    QPalette inks = palette();
    inks.setColor(QPalette::WindowText, color);
    setPalette(inks);
}

void LineLabel::mousePressEvent(QMouseEvent* event) {
    pressed = event->button() == Qt::LeftButton;
    pressedAt = event->globalPosition().toPoint();
}

void LineLabel::mouseMoveEvent(QMouseEvent* event) {
    const int distance = (event->globalPosition().toPoint() - pressedAt).manhattanLength();
    if (!pressed || distance < QApplication::startDragDistance())
        return;
    pressed = false;
    emit dragged();
}

void LineLabel::mouseReleaseEvent(QMouseEvent* event) {
    if (pressed && event->button() == Qt::LeftButton)
        emit clicked(event->globalPosition().toPoint());
    pressed = false;
}

} // namespace tambrelle
