#include "platform/freedesktop/statusitem/DockedLinePresentation.h"

#include "platform/freedesktop/statusitem/LineStyle.h"
#include "platform/freedesktop/statusitem/TrayManager.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include <chrono>

namespace tambrelle {

namespace {

/// The bar reparents the window between the request and its being shown; shown earlier it flashes on the
/// desktop.
constexpr std::chrono::milliseconds untilShown{150};

/// Bars lay out their items within this time of a change.
constexpr std::chrono::milliseconds untilLaidOut{500};

} // namespace

DockedLinePresentation::DockedLinePresentation(const TrayManager& tray, QObject* parent)
    : Presentation(parent), tray(tray), label(Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus) {
    label.setAttribute(Qt::WA_TranslucentBackground);
    label.setInk(tray.foreground().value_or(LineStyle::lightInk));
    connect(&label, &LineLabel::clicked, this, &Presentation::activated);
    check.setSingleShot(true);
    check.setInterval(untilLaidOut);
    connect(&check, &QTimer::timeout, this, &DockedLinePresentation::checkGrantedWidth);
}

void DockedLinePresentation::present(const StatusItemContent& content) {
    const QSize before = label.size();
    label.setLine(content.line);
    if (!docked)
        dock();
    else if (label.size() != before)
        check.start();
}

void DockedLinePresentation::dock() {
    docked = true;
    tray.dock(static_cast<std::uint32_t>(label.winId()));
    QTimer::singleShot(untilShown, this, [this] {
        label.show();
        check.start();
    });
}

void DockedLinePresentation::checkGrantedWidth() {
    const auto width = tray.grantedWidth(static_cast<std::uint32_t>(label.winId()));
    if (!width || *width < qRound(label.width() * label.devicePixelRatioF()))
        emit refused();
}

} // namespace tambrelle
