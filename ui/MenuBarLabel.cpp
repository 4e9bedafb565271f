#include "ui/MenuBarLabel.h"

#include "app/CalendarManager.h"

namespace tambrelle {

MenuBarLabel::MenuBarLabel(const CalendarManager& manager, StatusItem& item)
    : manager(manager), item(item), refresher([this] { refresh(); }) {
    refresher.observe(manager);
    refresh();
}

void MenuBarLabel::refresh() {
    const StatusItemContent content{.line = manager.menuBarText(), .day = manager.todayDate().day};
    if (content == shown)
        return;
    shown = content;
    item.present(content);
}

} // namespace tambrelle
