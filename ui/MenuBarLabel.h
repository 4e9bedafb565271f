#pragma once

#include "platform/StatusItem.h"
#include "ui/Refresher.h"

#include <optional>

namespace tambrelle {

class CalendarManager;

/// Keeps the item in the status bar at the manager's line, and tells it only when that changes.
class MenuBarLabel final {
public:
    MenuBarLabel(const CalendarManager& manager, StatusItem& item);

private:
    void refresh();

    const CalendarManager& manager;
    StatusItem& item;
    std::optional<StatusItemContent> shown;
    Refresher refresher;
};

} // namespace tambrelle
