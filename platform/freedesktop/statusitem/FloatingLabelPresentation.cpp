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

/// A window manager that is just starting may lose the wish of a window to be shown. At a login it may be
/// late.
constexpr std::chrono::seconds untilSeen{2};
constexpr int mostShows = 15;

constexpr Qt::WindowFlags windowFlags =
    Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus;

} // namespace

FloatingLabelPresentation::FloatingLabelPresentation(QObject* parent)
    : Presentation(parent), label(windowFlags) {
    label.setContentsMargins(LineStyle::padding, verticalPadding, LineStyle::padding, verticalPadding);
    label.setPaper(LineStyle::paper, LineStyle::edge);
    label.setInk(LineStyle::ink);

    connect(&label, &LineLabel::clicked, this, &Presentation::activated);
    connect(&label, &LineLabel::dragged, this, [this](QPoint corner) {
        placedByUser = true;
        // The toolkit, if it looked while the window manager was putting the window into its frame, holds it
        // for one at the origin, and the drag would begin with a leap.
        label.move(corner);
        // Where there is no window manager to move it on, each step of the pointer comes here.
        if (label.windowHandle()->startSystemMove())
            label.letGo();
    });
    seen.setInterval(untilSeen);
    connect(&seen, &QTimer::timeout, this, &FloatingLabelPresentation::showAgainUnlessSeen);
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this,
            &FloatingLabelPresentation::followPrimaryScreen);
    // Queued: while it is told of, a screen that goes is still among the others.
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &FloatingLabelPresentation::noteScreens,
            Qt::QueuedConnection);
    followPrimaryScreen();
}

void FloatingLabelPresentation::followPrimaryScreen() {
    for (const QMetaObject::Connection& former : geometry)
        disconnect(former);
    const QScreen* screen = QGuiApplication::primaryScreen();
    // Both: the window manager may announce what is free of a new size before the screen itself has it.
    geometry = {
        connect(screen, &QScreen::geometryChanged, this, &FloatingLabelPresentation::noteScreens),
        connect(screen, &QScreen::availableGeometryChanged, this, &FloatingLabelPresentation::noteScreens)};
    moveToCorner();
}

void FloatingLabelPresentation::noteScreens() {
    // Dragged to a screen, or to a part of one, that is there no longer.
    if (QGuiApplication::screenAt(label.geometry().center()) == nullptr)
        placedByUser = false;
    moveToCorner();
}

void FloatingLabelPresentation::keepOff(QRect pixels) {
    const double ratio = QGuiApplication::primaryScreen()->devicePixelRatio();
    bar = QRect(QPointF(pixels.topLeft() / ratio).toPoint(), QSizeF(pixels.size() / ratio).toSize());
    moveToCorner();
}

void FloatingLabelPresentation::present(const StatusItemContent& content) {
    const QSize before = label.size();
    label.setLine(content.line);
    if (label.size() != before)
        moveToCorner();
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

void FloatingLabelPresentation::moveToCorner() {
    if (placedByUser)
        return;
    const QScreen* screen = QGuiApplication::primaryScreen();
    const LabelPlacement placement{
        .screen = screen->geometry(), .available = screen->availableGeometry(), .bar = bar};
    label.move(placement.place(label.size()));
}

} // namespace tambrelle
