#pragma once

#include <cstdint>

namespace tambrelle {

/// A time of day in decimal units: ten hours of a hundred minutes of a hundred seconds.
struct DecimalTime {
    std::int64_t hours;   ///< 0 to 9 since local midnight
    std::int64_t minutes; ///< 0 to 99 within the hour
    std::int64_t seconds; ///< 0 to 99 within the minute

    bool operator==(const DecimalTime&) const = default;
};

} // namespace tambrelle
