#include "ui/panel/PanelWindow.h"

#include "ui/panel/MenuBarView.h"
#include "ui/panel/PanelPlacement.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QWheelEvent>

#include <algorithm>

namespace tambrelle {

namespace {

/// What one notch of the wheel moves, in logical pixels.
constexpr int notch = 48;
constexpr int wheelUnitsPerNotch = 120;

/// A click on the item takes the focus from a standing panel, which closes it, just before the item tells of
/// the click.
constexpr qint64 sameClick = 300;

Qt::WindowFlags flagsFor(PopoverKind kind) {
    const Qt::WindowType type = kind == PopoverKind::grabbing ? Qt::Popup : Qt::Tool;
    return type | Qt::FramelessWindowHint;
}

} // namespace

PanelWindow::PanelWindow(MenuBarView* view, PopoverKind kind)
    : QWidget(nullptr, flagsFor(kind)), view(view), kind(kind) {
    // The click that closes the panel is not to reach the item below and open it again.
    setAttribute(Qt::WA_NoMouseReplay);
    setWindowTitle(QStringLiteral("Tambrelle"));
    view->setParent(this);
    connect(view, &MenuBarView::heightChanged, this, &PanelWindow::fit);
    // Queued: while it is told of, a screen that goes is still among the others.
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &PanelWindow::fit, Qt::QueuedConnection);
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, &PanelWindow::fit, Qt::QueuedConnection);
}

void PanelWindow::toggle(QPoint click) {
    const bool closedByThisClick = sinceLeft.isValid() && !sinceLeft.hasExpired(sameClick);
    if (isVisible()) {
        close();
        // Closed on purpose, not by a loss of focus: the next click opens it.
        sinceLeft.invalidate();
    } else if (!closedByThisClick) {
        open(click);
    }
}

void PanelWindow::present(QPoint place) {
    if (!isVisible())
        open(place);
}

void PanelWindow::open(QPoint click) {
    lastClick = click;
    view->refresh();
    fit();
    scrollTo(0);
    show();
    if (kind == PopoverKind::standing)
        activateWindow();
    view->setFocus(Qt::PopupFocusReason);
}

void PanelWindow::fit() {
    const QScreen* there = QGuiApplication::screenAt(lastClick);
    if (!there) {
        // On a screen that has been unplugged, or nowhere at all: what is nearest to it on one that is there.
        there = QGuiApplication::primaryScreen();
        if (!there)
            return;
        const QRect whole = there->geometry();
        lastClick = {std::clamp(lastClick.x(), whole.left(), whole.right()),
                     std::clamp(lastClick.y(), whole.top(), whole.bottom())};
    }
    disconnect(availability);
    availability =
        connect(there, &QScreen::availableGeometryChanged, this, &PanelWindow::fit, Qt::QueuedConnection);
    PanelPlacement placement{.click = lastClick, .available = there->availableGeometry(), .top = {}};
    if (isVisible() && placement.available.contains(pos()))
        placement.top = y();
    view->setRoom(placement.room(view->leastHeight()));
    const QRect place = placement.place(view->size());
    // A compositor that tiles lets a window of one size float.
    if (kind == PopoverKind::standing)
        setFixedSize(place.size());
    setGeometry(place);
    scrollTo(view->y());
}

void PanelWindow::scrollTo(int top) {
    view->move(0, std::clamp(top, std::min(0, height() - view->height()), 0));
}

void PanelWindow::wheelEvent(QWheelEvent* event) {
    scrollTo(view->y() + event->angleDelta().y() * notch / wheelUnitsPerNotch);
}

void PanelWindow::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Up:
        scrollTo(view->y() + notch);
        break;
    case Qt::Key_Down:
        scrollTo(view->y() - notch);
        break;
    case Qt::Key_Escape:
        close();
        sinceLeft.invalidate();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void PanelWindow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    const bool left = event->type() == QEvent::ActivationChange && !isActiveWindow();
    if (kind != PopoverKind::standing || !left || !isVisible())
        return;
    sinceLeft.start();
    close();
}

bool PanelWindow::focusNextPrevChild(bool next) {
    const bool moved = QWidget::focusNextPrevChild(next);
    if (const QWidget* control = focusWidget(); control && control != view) {
        const QRect place(control->mapTo(this, QPoint(0, 0)), control->size());
        if (place.top() < 0)
            scrollTo(view->y() - place.top() + notch);
        else if (place.bottom() >= height())
            scrollTo(view->y() - (place.bottom() - height()) - notch);
    }
    return moved;
}

} // namespace tambrelle
