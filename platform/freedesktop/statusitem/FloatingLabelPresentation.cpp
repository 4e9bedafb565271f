#include "platform/freedesktop/statusitem/FloatingLabelPresentation.h"

#include "platform/freedesktop/statusitem/LabelPlacement.h"
#include "platform/freedesktop/statusitem/LineStyle.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

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
        onTheMove = true;
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
    connect(&resting, &QTimer::timeout, this, &FloatingLabelPresentation::remember);
    seen.setInterval(untilSeen);
    connect(&seen, &QTimer::timeout, this, &FloatingLabelPresentation::showAgainUnlessSeen);
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this,
            &FloatingLabelPresentation::followPrimaryScreen);
    // Queued: while it is told of, a screen that goes is still among the others.
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &FloatingLabelPresentation::noteScreens,
            Qt::QueuedConnection);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, &FloatingLabelPresentation::noteScreens,
            Qt::QueuedConnection);
    followPrimaryScreen();
}

FloatingLabelPresentation::~FloatingLabelPresentation() {
    if (resting.isActive())
        remember();
}

void FloatingLabelPresentation::followDrag(QPoint corner) {
    if (!onTheMove)
        return;
    placedByUser = corner;
    resting.start();
}

void FloatingLabelPresentation::remember() {
    if (placedByUser)
        remembered.remember(*placedByUser);
}

void FloatingLabelPresentation::followPrimaryScreen() {
    for (const QMetaObject::Connection& former : geometry)
        disconnect(former);
    const QScreen* screen = QGuiApplication::primaryScreen();
    // Both: the window manager may announce what is free of a new size before the screen itself has it.
    geometry = {
        connect(screen, &QScreen::geometryChanged, this, &FloatingLabelPresentation::noteScreens),
        connect(screen, &QScreen::availableGeometryChanged, this, &FloatingLabelPresentation::noteScreens)};
    moveToPlace();
}

void FloatingLabelPresentation::noteScreens() {
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
    onTheMove = false;
    // Dragged to a screen, or to a part of one, that is there no longer, it stands in the corner.
    const QRect dragged(placedByUser.value_or(QPoint()), label.size());
    const QScreen* there = placedByUser ? QGuiApplication::screenAt(dragged.center()) : nullptr;
    if (there) {
        label.move(*placedByUser);
        return;
    }
    const QScreen* screen = QGuiApplication::primaryScreen();
    const LabelPlacement placement{
        .screen = screen->geometry(), .available = screen->availableGeometry(), .bar = bar};
    label.move(placement.place(label.size()));
}

} // namespace tambrelle
