#include "platform/freedesktop/statusitem/DockedIconPresentation.h"

#include "platform/freedesktop/statusitem/TrayManager.h"

namespace tambrelle {

DockedIconPresentation::DockedIconPresentation(const TrayManager& tray, QObject* parent)
    : Presentation(parent), dock(tray, icon) {
    connect(&icon, &DayIconWidget::clicked, this, &Presentation::activated);
    connect(&dock, &TrayDock::settled, this, [this, &tray](std::optional<QSize> granted) {
        if (!granted)
            emit refused();
        else if (const auto bar = tray.barAround(static_cast<std::uint32_t>(icon.winId())))
            emit settledIn(*bar);
    });
}

void DockedIconPresentation::present(const StatusItemContent& content) {
    icon.setDay(content.day, content.line);
    if (!docked)
        dock.settle();
    docked = true;
}

} // namespace tambrelle
