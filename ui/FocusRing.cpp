#include "ui/FocusRing.h"

#include "ui/Ink.h"

#include <QAbstractButton>
#include <QFocusEvent>
#include <QPainter>

namespace tambrelle {

namespace {

constexpr int distance = 4;
constexpr double lineWidth = 2;
constexpr double cornerRadius = 5;

} // namespace

FocusRing::FocusRing(QWidget* panel) : QWidget(panel) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    for (QAbstractButton* button : panel->findChildren<QAbstractButton*>())
        button->installEventFilter(this);
}

void FocusRing::follow() {
    if (!control || !control->isVisibleTo(parentWidget())) {
        hide();
        return;
    }
    const QPoint place = control->mapTo(parentWidget(), QPoint(0, 0));
    setGeometry(QRect(place, control->size()).adjusted(-distance, -distance, distance, distance));
    raise();
    show();
}

bool FocusRing::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn) {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason) {
            control = static_cast<QWidget*>(watched);
            follow();
        }
    } else if (watched == control) {
        if (event->type() == QEvent::FocusOut || event->type() == QEvent::Hide) {
            control = nullptr;
            hide();
        } else if (event->type() == QEvent::Move || event->type() == QEvent::Resize) {
            follow();
        }
    }
    return false;
}

void FocusRing::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color(palette(), Ink::focus), lineWidth));
    const double inset = lineWidth / 2;
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), cornerRadius,
                            cornerRadius);
}

} // namespace tambrelle
