#include "ui/MenuBarLabel.h"

#include "app/CalendarManager.h"

namespace tambrelle {

MenuBarLabel::MenuBarLabel(const CalendarManager& manager, StatusItem& item)
    : manager(manager), item(item), refresher([this] { refresh(); }) {
    refresher.observe(manager);
    refresh();
}

[[gnu::hot]] MenuBarLabel::Inputs MenuBarLabel::inputs() const {
    const DecimalTime& time = manager.currentTime();
    return {manager.todayDate(), time.hours, time.minutes, manager.menuBarFormat()};
}

[[gnu::hot]] void MenuBarLabel::refresh() {
    // Most ticks pass within a decimal minute; building the text only to find it unchanged is most of their
    // cost.
    const Inputs next = inputs();
    if (next == builtFrom)
        return;
    builtFrom = next;
    item.present({.line = manager.menuBarText(), .day = next.date.day});
}

} // namespace tambrelle
