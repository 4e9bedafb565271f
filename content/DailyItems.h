#pragma once

#include "content/DailyItem.h"
#include "core/RevolutionaryDate.h"

#include <array>
#include <optional>

namespace tambrelle::DailyItems {

/// One item for each of the 360 ordinary days in the order of the year, each with `dayOfYear` 0. Row i
/// belongs to month i / 30 + 1, day i % 30 + 1.
extern const std::array<DailyItem, 360> all;

/// The item of the date's month and day, with its `dayOfYear`. Absent on the complementary days and wherever
/// month and day name none of the 360 days. A month or day too large to count with stops the program.
std::optional<DailyItem> item(const RevolutionaryDate& date);

} // namespace tambrelle::DailyItems
