#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace tambrelle {

constexpr std::int64_t secondsPerDay = 86'400;

/// Whether a year of the proleptic Gregorian calendar has 366 days. Counted as astronomers do: 0 is the year
/// before 1, and negative years come before it.
constexpr bool isGregorianLeapYear(std::int64_t year) {
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

/// How many days a month, 1 to 12, of the proleptic Gregorian calendar has: 28 to 31. Another month is the
/// caller's error.
constexpr std::int64_t daysInGregorianMonth(std::int64_t year, std::int64_t month) {
    constexpr std::array<std::int64_t, 12> lengths{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return lengths[static_cast<std::size_t>(month - 1)] + (month == 2 && isGregorianLeapYear(year) ? 1 : 0);
}

/// Days from 1 January 1970 to a civil date of the proleptic Gregorian calendar, negative before it.
/// Holds for every year that fits an int. A year is counted from March, so that the leap day ends it.
constexpr std::int64_t civilDayNumber(std::int64_t year, std::int64_t month, std::int64_t day) {
    constexpr std::int64_t daysPerEra = 146'097; // 400 years
    constexpr std::int64_t marchFirstOfYear0To1970 = 719'468;
    const std::int64_t marchYear = month > 2 ? year : year - 1;
    const std::int64_t era = (marchYear >= 0 ? marchYear : marchYear - 399) / 400;
    const std::int64_t yearOfEra = marchYear - era * 400;
    const std::int64_t monthFromMarch = month > 2 ? month - 3 : month + 9;
    // 153 days are March to July, and again August to December.
    const std::int64_t dayOfYear = (153 * monthFromMarch + 2) / 5 + day - 1;
    const std::int64_t dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    return era * daysPerEra + dayOfEra - marchFirstOfYear0To1970;
}

} // namespace tambrelle
