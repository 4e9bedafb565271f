#pragma once

#include "ui/Refresher.h"

namespace tambrelle {

class CalendarManager;
class StatusItem;

/// Keeps the item in the status bar at the manager's line.
class MenuBarLabel final {
public:
    MenuBarLabel(const CalendarManager& manager, StatusItem& item);

private:
    void refresh();

    const CalendarManager& manager;
    StatusItem& item;
    Refresher refresher;
};

} // namespace tambrelle
