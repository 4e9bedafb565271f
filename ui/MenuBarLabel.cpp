#include "ui/MenuBarLabel.h"

#include "app/CalendarManager.h"
#include "platform/StatusItem.h"

namespace tambrelle {

MenuBarLabel::MenuBarLabel(const CalendarManager& manager, StatusItem& item)
    : manager(manager), item(item), refresher([this] { refresh(); }) {
    refresher.observe(manager);
    refresh();
}

void MenuBarLabel::refresh() {
    item.present({.line = manager.menuBarText(), .day = manager.todayDate().day});
}

} // namespace tambrelle
