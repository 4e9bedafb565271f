#include "platform/freedesktop/statusitem/TrayDock.h"

#include "platform/freedesktop/statusitem/TrayManager.h"

#include <QWidget>

#include <chrono>

namespace tambrelle {

namespace {

/// The bar reparents the window between the request and its being shown; shown earlier it flashes on the
/// desktop.
constexpr std::chrono::milliseconds untilShown{150};

/// Bars lay out their items within this time of a change.
constexpr std::chrono::milliseconds untilLaidOut{500};

} // namespace

TrayDock::TrayDock(const TrayManager& tray, QWidget& window, QObject* parent)
    : QObject(parent), tray(tray), window(window) {
    layout.setSingleShot(true);
    layout.setInterval(untilLaidOut);
    connect(&layout, &QTimer::timeout, this, &TrayDock::look);
}

void TrayDock::settle() {
    if (docked)
        layout.start();
    else
        dock();
}

void TrayDock::dock() {
    docked = true;
    tray.dock(static_cast<std::uint32_t>(window.winId()));
    QTimer::singleShot(untilShown, this, [this] {
        window.show();
        tray.announceShown(static_cast<std::uint32_t>(window.winId()));
        layout.start();
    });
}

void TrayDock::look() {
    const auto pixels = tray.grantedSize(static_cast<std::uint32_t>(window.winId()));
    emit settled(pixels ? std::optional<QSize>(*pixels / window.devicePixelRatioF()) : std::nullopt);
}

} // namespace tambrelle
