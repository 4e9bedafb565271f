#include "platform/freedesktop/statusitem/DockedIconPresentation.h"

#include "platform/freedesktop/statusitem/TrayManager.h"

#include <algorithm>

namespace tambrelle {

namespace {

/// Smaller nobody would take it for a calendar, nor hit it, logical pixels.
constexpr int leastSide = 8;

} // namespace

DockedIconPresentation::DockedIconPresentation(const TrayManager& tray, QObject* parent)
    : Presentation(parent), tray(tray), dock(tray, icon) {
    connect(&icon, &DayIconWidget::clicked, this, &Presentation::activated);
    connect(&dock, &TrayDock::settled, this, &DockedIconPresentation::judge);
}

void DockedIconPresentation::present(const StatusItemContent& content) {
    icon.setDay(content.day, content.line);
    if (!docked)
        dock.settle();
    docked = true;
}

void DockedIconPresentation::judge(std::optional<QSize> granted) {
    const int side = granted ? std::min(granted->width(), granted->height()) : 0;
    if (side < leastSide) {
        emit refused();
    } else if (side < icon.minimumWidth() && granted->width() != granted->height()) {
        // The bar is lower than what was asked for, and the rest of the width would be empty.
        icon.setSide(side);
        dock.settle();
    } else if (const auto bar = tray.barAround(static_cast<std::uint32_t>(icon.winId()))) {
        emit settledIn(*bar);
    }
}

} // namespace tambrelle
