#pragma once

#include "core/DecimalTime.h"
#include "core/Instant.h"
#include "core/RevolutionaryDate.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace tambrelle {

/// The present by the Republican calendar: the day, and the time of that day.
struct RevolutionaryMoment {
    RevolutionaryDate date;
    DecimalTime time;

    bool operator==(const RevolutionaryMoment&) const = default;
};

/// The Republican calendar by its arithmetic rule: year 1 begins on 22 September 1792 and every fourth year
/// from year 3 on has 366 days, without exception for centuries. A day begins at local midnight.
namespace RevolutionaryCalendar {

/// The Republican day at the instant, by the wall calendar of the system's time zone. Every instant before
/// the epoch gives the epoch's own date, 1 Vendémiaire of year 1.
RevolutionaryDate fromGregorian(Instant instant);

/// The Republican day that lies this many days after the epoch; a negative count gives the epoch's date.
RevolutionaryDate fromDayNumber(std::int64_t daysSinceEpoch);

/// The decimal time of day at the instant, by the wall clock of the system's time zone; fractions of a
/// standard second are dropped. The greatest result is 9:99:98.
DecimalTime toDecimalTime(Instant instant);

/// Both of the above from one reading of the zone, which is most of what either costs.
RevolutionaryMoment toMoment(Instant instant);

/// As above without any reading of the zone, for who knows what the wall clock is ahead of universal time.
RevolutionaryMoment toMoment(Instant instant, std::chrono::seconds offset);

/// The number in Roman numerals, with as many M as it takes; empty for zero and below.
std::string toRoman(std::int64_t value);

/// The month names; the index is the month less 1.
inline constexpr std::array<std::string_view, 13> monthNames{
    "Vendémiaire", "Brumaire", "Frimaire", "Nivôse",    "Pluviôse",  "Ventôse",        "Germinal",
    "Floréal",     "Prairial", "Messidor", "Thermidor", "Fructidor", "Sansculottides",
};

/// The English sense of each month's name; the index is the month less 1.
inline constexpr std::array<std::string_view, 13> monthMeanings{
    "Month of Grape Harvest", "Month of Fog",     "Month of Frost",       "Month of Snow",
    "Month of Rain",          "Month of Wind",    "Month of Germination", "Month of Flowers",
    "Month of Meadows",       "Month of Harvest", "Month of Heat",        "Month of Fruit",
    "Complementary Days",
};

/// One emoji a month; the index is the month less 1. Some end in U+FE0F, which asks for the coloured picture.
inline constexpr std::array<std::string_view, 13> monthEmojis{
    "\U0001F347",   "\U0001F32B\uFE0F", "\U0001F976", "\u2603\uFE0F", "\U0001F327\uFE0F",
    "\U0001F4A8",   "\U0001F331",       "\U0001F338", "\U0001F33E",   "\U0001F33B",
    "\u2600\uFE0F", "\U0001F34E",       "\U0001F389",
};

/// The days of the ten-day week; the index is `decadeDay` less 1.
inline constexpr std::array<std::string_view, 10> dayNames{
    "Primidi", "Duodi", "Tridi", "Quartidi", "Quintidi", "Sextidi", "Septidi", "Octidi", "Nonidi", "Décadi",
};

/// The festivals of the complementary days; the index is the day of month 13 less 1.
/// The sixth exists only in a year of 366 days.
inline constexpr std::array<std::string_view, 6> sansculottidesNames{
    "La Fête de la Vertu",  "La Fête du Génie",        "La Fête du Travail",
    "La Fête de l'Opinion", "La Fête des Récompenses", "La Fête de la Révolution",
};

/// The tables by their numbers. A number outside its table (a month not in 1 to 13, a day of the décade not
/// in 1 to 10, a complementary day not in 1 to 6) stops the program.
std::string_view monthName(std::int64_t month);
std::string_view monthMeaning(std::int64_t month);
std::string_view monthEmoji(std::int64_t month);
std::string_view dayName(std::int64_t decadeDay);
std::string_view sansculottidesName(std::int64_t day);

} // namespace RevolutionaryCalendar
} // namespace tambrelle
