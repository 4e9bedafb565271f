#pragma once

#include <cstdint>
#include <string>

namespace tambrelle {

/// A day of the Republican calendar.
struct RevolutionaryDate {
    std::int64_t year;      ///< 1 and upward; year 1 begins on 22 September 1792
    std::int64_t month;     ///< 1 to 12 are the named months, 13 the complementary days
    std::int64_t day;       ///< 1 to 30; in month 13 1 to 5, or to 6 in a year of 366 days
    std::int64_t decadeDay; ///< 1 to 10, the place in the ten-day week; in month 13 the same as `day`

    bool operator==(const RevolutionaryDate&) const = default;

    /// The long text, such as "23 Brumaire an CCXXXIV". A month outside 1 to 13 stops the program.
    std::string formatted() const;
};

} // namespace tambrelle
