#include "platform/freedesktop/statusitem/TrayDock.h"

#include "platform/freedesktop/statusitem/TrayManager.h"

#include <QEvent>
#include <QWidget>

#include <chrono>

namespace tambrelle {

namespace {

/// Between looks whether the bar has reparented the window. Shown before that it flashes on the desktop.
constexpr std::chrono::milliseconds untilTaken{150};

/// While a session begins, a bar can be that busy.
constexpr std::chrono::seconds patience{10};

/// Between looks at the size. A bar has laid out its items when two of them are the same.
constexpr std::chrono::milliseconds untilLaidOut{250};

} // namespace

TrayDock::TrayDock(const TrayManager& tray, QWidget& window, QObject* parent)
    : QObject(parent), tray(tray), window(window) {
    window.installEventFilter(this);
    place.setInterval(untilTaken);
    connect(&place, &QTimer::timeout, this, &TrayDock::lookForPlace);
    layout.setInterval(untilLaidOut);
    connect(&layout, &QTimer::timeout, this, &TrayDock::lookAtSize);
}

bool TrayDock::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize && docked)
        settle();
    return QObject::eventFilter(watched, event);
}

void TrayDock::settle() {
    if (!docked)
        dock();
    else if (!place.isActive())
        startLooking();
}

void TrayDock::dock() {
    docked = true;
    tray.dock(static_cast<std::uint32_t>(window.winId()));
    place.start();
}

void TrayDock::lookForPlace() {
    const auto id = static_cast<std::uint32_t>(window.winId());
    waited += untilTaken;
    const bool taken = tray.grantedSize(id).has_value();
    if (!taken && waited < patience)
        return;
    place.stop();
    if (!taken) {
        emit settled(std::nullopt);
        return;
    }
    window.show();
    tray.announceShown(id);
    startLooking();
}

void TrayDock::startLooking() {
    seen.reset();
    layout.start();
}

void TrayDock::lookAtSize() {
    const auto pixels = tray.grantedSize(static_cast<std::uint32_t>(window.winId()));
    if (pixels && pixels != seen) {
        seen = pixels;
        return;
    }
    layout.stop();
    emit settled(pixels ? std::optional<QSize>(*pixels / window.devicePixelRatioF()) : std::nullopt);
}

} // namespace tambrelle
