#include "platform/freedesktop/statusitem/DayIconWidget.h"

#include "platform/freedesktop/statusitem/DayIcon.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace tambrelle {

namespace {

/// What is asked for; bars of squares give the side that they like.
constexpr int wantedSide = 22;

} // namespace

DayIconWidget::DayIconWidget() : QWidget(nullptr, Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus) {
    setWindowTitle(QStringLiteral("Tambrelle"));
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_QuitOnClose, false);
    setSide(wantedSide);
}

void DayIconWidget::setSide(int side) {
    // Some bars give a window what it calls its least, and nothing where it names none.
    setMinimumSize(side, side);
    resize(side, side);
}

void DayIconWidget::setDay(std::int64_t number, const QString& line) {
    day = number;
    setToolTip(line);
    setAccessibleName(line);
    update();
}

void DayIconWidget::paintEvent(QPaintEvent* /*event*/) {
    const int side = std::min(width(), height());
    QImage icon = dayIcon(day, qRound(side * devicePixelRatioF()));
    icon.setDevicePixelRatio(devicePixelRatioF());
    QPainter(this).drawImage((width() - side) / 2, (height() - side) / 2, icon);
}

void DayIconWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        emit clicked(event->globalPosition().toPoint());
}

} // namespace tambrelle
