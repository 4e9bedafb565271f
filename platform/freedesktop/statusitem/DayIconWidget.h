#pragma once

#include <QPoint>
#include <QWidget>

#include <cstdint>

namespace tambrelle {

/// The square icon as a window of ours, for a bar that has room for squares only.
class DayIconWidget final : public QWidget {
    Q_OBJECT

public:
    DayIconWidget();

    /// `line` is what shows under the pointer and what a screen reader reads.
    void setDay(std::int64_t day, const QString& line);
    /// Asks the bar for a square of this side, logical pixels.
    void setSide(int side);

signals:
    void clicked(QPoint position);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    std::int64_t day = 1;
};

} // namespace tambrelle
