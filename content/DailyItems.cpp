#include "content/DailyItems.h"

#include "core/Precondition.h"

#include <cstddef>

namespace tambrelle::DailyItems {

std::optional<DailyItem> item(const RevolutionaryDate& date) {
    constexpr std::int64_t lastNamedMonth = 12;
    constexpr std::int64_t daysInMonth = 30;
    if (date.month > lastNamedMonth)
        return std::nullopt;
    const std::int64_t dayOfYear =
        checkedAdd(checkedMultiply(checkedSubtract(date.month, 1), daysInMonth), date.day);
    if (dayOfYear < 1 || dayOfYear > static_cast<std::int64_t>(all.size()))
        return std::nullopt;
    DailyItem found = all[static_cast<std::size_t>(dayOfYear - 1)];
    found.dayOfYear = dayOfYear;
    return found;
}

} // namespace tambrelle::DailyItems
