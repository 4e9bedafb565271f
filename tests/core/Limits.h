#pragma once

#include <cstdint>
#include <limits>

namespace tambrelle::test {

/// The ends of the range of every count in the calendar.
inline constexpr auto greatest = std::numeric_limits<std::int64_t>::max();
inline constexpr auto least = std::numeric_limits<std::int64_t>::min();

} // namespace tambrelle::test
