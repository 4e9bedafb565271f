#pragma once

#include <QColor>
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
    /// The colour of the text; emoji keep their own. Until it is called, that of the desktop's windows.
    void setInk(const QColor& color);
    /// Lays the line on a slip of paper of its own; without one it stands on whatever is behind the window.
    void setPaper(const QColor& ground, const QColor& edge);

signals:
    /// Pressed and released in place; `position` is on the screen.
    void clicked(QPoint position);
    /// Pressed and pulled away; `corner` is the window's upper left one on the screen, as the pointer has it.
    void dragged(QPoint corner);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    QColor paper;
    QColor paperEdge;
    QPoint pressedAt;
    bool pressed = false;
};

} // namespace tambrelle
