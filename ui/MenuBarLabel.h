#pragma once

#include "core/MenuBarFormat.h"
#include "core/RevolutionaryDate.h"
#include "platform/StatusItem.h"
#include "ui/Refresher.h"

#include <cstdint>
#include <optional>

namespace tambrelle {

class CalendarManager;

/// Keeps the item in the status bar at the manager's line, and tells it only when something changes that the
/// line may be made of.
class MenuBarLabel final {
public:
    MenuBarLabel(const CalendarManager& manager, StatusItem& item);

private:
    /// All that the line is made of; the seconds are never shown.
    struct Inputs {
        RevolutionaryDate date;
        std::int64_t hours;
        std::int64_t minutes;
        MenuBarFormat format;

        bool operator==(const Inputs&) const = default;
    };

    void refresh();
    [[nodiscard]] Inputs inputs() const;

    const CalendarManager& manager;
    StatusItem& item;
    std::optional<Inputs> builtFrom;
    Refresher refresher;
};

} // namespace tambrelle
