#pragma once

#include <QLabel>
#include <QPoint>

namespace tambrelle {

/// The line as a widget: one line of monospaced text that can be clicked, and that a screen reader reads as
/// its text.
class LineLabel : public QLabel {
    Q_OBJECT

public:
    explicit LineLabel(Qt::WindowFlags flags);

    /// Shows `text` and takes exactly the room that it needs.
    void setLine(const QString& text);
    void setInk(const QColor& color);

signals:
    /// Pressed and released in place; `position` is on the screen.
    void clicked(QPoint position);
    /// Pressed and pulled away.
    void dragged();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    QPoint pressedAt;
    bool pressed = false;
};

} // namespace tambrelle
