#pragma once

#include "platform/freedesktop/statusitem/MeasuredLine.h"

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
    /// What the line needs, logical pixels; the label itself may have been made larger or smaller.
    [[nodiscard]] QSize lineSize() const { return line.size(); }
    /// The least height in which the line is not cut, logical pixels.
    [[nodiscard]] int leastHeight() const { return line.leastHeight(); }
    /// The colour of the text; emoji keep their own. Until it is called, that of the desktop's windows.
    void setInk(const QColor& color);
    /// Lays the line on a slip of paper of its own; without one it stands on whatever is behind the window.
    void setPaper(const QColor& ground, const QColor& edge);

    /// The press under way is over for the label: another moves the window from here on.
    void letGo() { pressed = false; }

signals:
    /// Pressed and released in place; `position` is on the screen.
    void clicked(QPoint position);
    /// Pressed and pulled away, at each step of the pointer; `corner` is where that puts the window's upper
    /// left one on the screen.
    void dragged(QPoint corner);
    /// Its upper left corner is now here on the screen, whoever moved it.
    void moved(QPoint corner);

protected:
    void paintEvent(QPaintEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    MeasuredLine line;
    QColor paper;
    QColor paperEdge;
    QPoint pressedAt; ///< On the screen.
    QPoint grip;      ///< The same in the label.
    bool pressed = false;
    bool pulled = false;
};

} // namespace tambrelle
