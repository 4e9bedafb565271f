#include "platform/freedesktop/statusitem/FloatingLabelPresentation.h"

#include "platform/freedesktop/statusitem/LabelPlacement.h"
#include "platform/freedesktop/statusitem/LineStyle.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <QSignalBlocker>
#include <QWindow>

#include <algorithm>
#include <chrono>

namespace tambrelle {

namespace {

/// The air above and below the text, logical pixels.
constexpr int verticalPadding = 3;

/// The window manager moves the label with the pointer and does not tell when it has been let go.
constexpr std::chrono::seconds untilResting{1};

/// A window manager that is just starting may lose the wish of a window to be shown. At a login it may be
/// late.
constexpr std::chrono::seconds untilSeen{2};
constexpr int mostShows = 15;

/// How far a label that is dragged may lag behind the pointer, logical pixels.
constexpr int mostLag = 10;

bool near(QPoint pointer, const QRect& label) {
    return label.marginsAdded({mostLag, mostLag, mostLag, mostLag}).contains(pointer);
}

/// The upper left corner of the label, moved as little as makes it whole.
QPoint inside(const QRect& screen, const QRect& label) {
    const QPoint last = screen.bottomRight() - QPoint(label.width() - 1, label.height() - 1);
    return {std::max(screen.left(), std::min(label.left(), last.x())),
            std::max(screen.top(), std::min(label.top(), last.y()))};
}

constexpr Qt::WindowFlags windowFlags =
    Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus;

} // namespace

FloatingLabelPresentation::FloatingLabelPresentation(RememberedPlace remembered, QObject* parent)
    : Presentation(parent), label(windowFlags), remembered(remembered), placedByUser(remembered.corner()) {
    label.setContentsMargins(LineStyle::padding, verticalPadding, LineStyle::padding, verticalPadding);
    label.setPaper(LineStyle::paper, LineStyle::edge);
    label.setInk(LineStyle::ink);

    connect(&label, &LineLabel::clicked, this, &Presentation::activated);
    connect(&label, &LineLabel::dragged, this, [this](QPoint corner) {
        // Wayland tells nobody where a window is.
        followed = !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
        // The toolkit, if it looked while the window manager was putting the window into its frame, holds it
        // for one at the origin, and the drag would begin with a leap.
        label.move(corner);
        // Where there is no window manager to move it on, each step of the pointer comes here.
        if (label.windowHandle()->startSystemMove())
            label.letGo();
    });
    connect(&label, &LineLabel::moved, this, &FloatingLabelPresentation::followDrag);
    resting.setSingleShot(true);
    resting.setInterval(untilResting);
    connect(&resting, &QTimer::timeout, this, [this] {
        remember();
        // The screens may have changed meanwhile.
        moveToPlace();
    });
    seen.setInterval(untilSeen);
    connect(&seen, &QTimer::timeout, this, &FloatingLabelPresentation::showAgainUnlessSeen);
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this,
            &FloatingLabelPresentation::followPrimaryScreen);
    // Queued: while it is told of, a screen that goes is still among the others.
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &FloatingLabelPresentation::moveToPlace,
            Qt::QueuedConnection);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, &FloatingLabelPresentation::followScreen);
    for (const QScreen* screen : QGuiApplication::screens())
        followScreen(screen);
    followPrimaryScreen();
}

FloatingLabelPresentation::~FloatingLabelPresentation() {
    if (resting.isActive())
        remember();
}

void FloatingLabelPresentation::followDrag(QPoint corner) {
    // A window manager that begins, or that clears a screen away, moves windows too, wherever the pointer is.
    if (!followed || !near(QCursor::pos(), {corner, label.size()}))
        return;
    placedByUser = corner;
    resting.start();
}

void FloatingLabelPresentation::remember() {
    remembered.remember(*placedByUser);
}

void FloatingLabelPresentation::followScreen(const QScreen* screen) {
    connect(screen, &QScreen::geometryChanged, this, &FloatingLabelPresentation::moveToPlace);
    // Queued: while it is told of, a new screen has no place yet.
    QMetaObject::invokeMethod(this, &FloatingLabelPresentation::moveToPlace, Qt::QueuedConnection);
}

void FloatingLabelPresentation::followPrimaryScreen() {
    disconnect(freePart);
    // Besides: the window manager may announce what is free of a new size before the screen itself has it.
    freePart = connect(QGuiApplication::primaryScreen(), &QScreen::availableGeometryChanged, this,
                       &FloatingLabelPresentation::moveToPlace);
    moveToPlace();
}

void FloatingLabelPresentation::keepOff(QRect pixels) {
    const double ratio = QGuiApplication::primaryScreen()->devicePixelRatio();
    bar = QRect(QPointF(pixels.topLeft() / ratio).toPoint(), QSizeF(pixels.size() / ratio).toSize());
    moveToPlace();
}

void FloatingLabelPresentation::present(const StatusItemContent& content) {
    const QSize before = label.size();
    label.setLine(content.line);
    if (label.size() != before)
        moveToPlace();
    label.show();
    if (shows > 0)
        return;
    shows = 1;
    seen.start();
}

void FloatingLabelPresentation::showAgainUnlessSeen() {
    if (label.windowHandle()->isExposed() || shows > mostShows) {
        seen.stop();
        return;
    }
    ++shows;
    label.hide();
    label.show();
}

void FloatingLabelPresentation::moveToPlace() {
    // It is in the user's hand.
    if (resting.isActive())
        return;
    const QSignalBlocker notTheUser(label);
    const QScreen* screen = QGuiApplication::primaryScreen();
    // Where it was dragged to a screen, or to a part of one, that is not there now, it stands in the corner.
    const QRect dragged(placedByUser.value_or(QPoint()), label.size());
    if (const QScreen* there = placedByUser ? QGuiApplication::screenAt(dragged.center()) : nullptr) {
        label.move(inside(there->geometry(), dragged));
        return;
    }
    const LabelPlacement placement{
        .screen = screen->geometry(), .available = screen->availableGeometry(), .bar = bar};
    label.move(placement.place(label.size()));
}

} // namespace tambrelle
