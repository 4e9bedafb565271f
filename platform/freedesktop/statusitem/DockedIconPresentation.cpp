#include "platform/freedesktop/statusitem/DockedIconPresentation.h"

namespace tambrelle {

DockedIconPresentation::DockedIconPresentation(const TrayManager& tray, QObject* parent)
    : Presentation(parent), dock(tray, icon) {
    connect(&icon, &DayIconWidget::clicked, this, &Presentation::activated);
    connect(&dock, &TrayDock::settled, this, [this](std::optional<int> width) {
        if (!width)
            emit refused();
    });
}

void DockedIconPresentation::present(const StatusItemContent& content) {
    icon.setDay(content.day, content.line);
    if (!docked)
        dock.settle();
    docked = true;
}

} // namespace tambrelle
