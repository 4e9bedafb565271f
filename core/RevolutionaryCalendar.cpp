#include "core/RevolutionaryCalendar.h"

#include "core/CivilDays.h"
#include "core/GregorianCalendar.h"
#include "core/Precondition.h"

#include <cstddef>
#include <optional>

namespace tambrelle::RevolutionaryCalendar {
namespace {

constexpr std::int64_t epochDayNumber = civilDayNumber(1792, 9, 22);

template <std::size_t size>
std::string_view entry(const std::array<std::string_view, size>& table, std::int64_t number,
                       const char* what) {
    precondition(number >= 1 && number <= static_cast<std::int64_t>(size), what);
    return table[static_cast<std::size_t>(number - 1)];
}

struct RomanSymbol {
    std::int64_t value;
    std::string_view text;
};

constexpr std::array<RomanSymbol, 13> romanSymbols{{
    {1000, "M"},
    {900, "CM"},
    {500, "D"},
    {400, "CD"},
    {100, "C"},
    {90, "XC"},
    {50, "L"},
    {40, "XL"},
    {10, "X"},
    {9, "IX"},
    {5, "V"},
    {4, "IV"},
    {1, "I"},
}};

// The epoch is a midnight, so the whole days since then are those between the two civil dates, and the one
// reading of the zone that gave the date is enough.
RevolutionaryDate dateOf(std::int64_t civilDay) {
    return fromDayNumber(civilDay - epochDayNumber);
}

RevolutionaryDate dateOf(const std::optional<CivilComponents>& civil) {
    precondition(civil.has_value(), "an instant without a civil date");
    return dateOf(civilDayNumber(civil->year, civil->month, civil->day));
}

DecimalTime timeOf(std::int64_t secondOfDay) {
    constexpr std::int64_t decimalSecondsPerDay = 100'000;
    const std::int64_t decimalSeconds = secondOfDay * decimalSecondsPerDay / secondsPerDay;
    return {decimalSeconds / 10'000, decimalSeconds % 10'000 / 100, decimalSeconds % 100};
}

DecimalTime timeOf(const std::optional<CivilComponents>& civil) {
    return timeOf(civil ? civil->hour * 3600 + civil->minute * 60 + civil->second : 0);
}

} // namespace

RevolutionaryDate fromGregorian(Instant instant) {
    return dateOf(GregorianCalendar::components(instant));
}

[[gnu::hot]] RevolutionaryDate fromDayNumber(std::int64_t daysSinceEpoch) {
    if (daysSinceEpoch < 0)
        return {1, 1, 1, 1};

    // Four years of 365, 365, 366 and 365 days repeat from the epoch on.
    constexpr std::int64_t daysInCycle = 1461;
    const std::int64_t dayOfCycle = daysSinceEpoch % daysInCycle;
    std::int64_t yearOfCycle = 3;
    std::int64_t firstDayOfYear = 1096;
    if (dayOfCycle < 365) {
        yearOfCycle = 0;
        firstDayOfYear = 0;
    } else if (dayOfCycle < 730) {
        yearOfCycle = 1;
        firstDayOfYear = 365;
    } else if (dayOfCycle < 1096) {
        yearOfCycle = 2;
        firstDayOfYear = 730;
    }
    const std::int64_t year = daysSinceEpoch / daysInCycle * 4 + yearOfCycle + 1;
    const std::int64_t dayOfYear = dayOfCycle - firstDayOfYear;
    return {year, dayOfYear / 30 + 1, dayOfYear % 30 + 1, dayOfYear % 10 + 1};
}

DecimalTime toDecimalTime(Instant instant) {
    return timeOf(GregorianCalendar::components(instant));
}

RevolutionaryMoment toMoment(Instant instant) {
    const auto civil = GregorianCalendar::components(instant);
    return {dateOf(civil), timeOf(civil)};
}

[[gnu::hot]] RevolutionaryMoment toMoment(Instant instant, std::chrono::seconds offset) {
    using std::chrono::days;
    const auto wall = std::chrono::floor<std::chrono::seconds>(instant) + offset;
    const auto day = std::chrono::floor<days>(wall);
    return {dateOf(std::int64_t{day.time_since_epoch().count()}), timeOf((wall - day).count())};
}

std::string toRoman(std::int64_t value) {
    std::string text;
    for (const auto& symbol : romanSymbols) {
        for (; value >= symbol.value; value -= symbol.value)
            text += symbol.text;
    }
    return text;
}

std::string_view monthName(std::int64_t month) {
    return entry(monthNames, month, "a month outside 1 to 13");
}

std::string_view monthMeaning(std::int64_t month) {
    return entry(monthMeanings, month, "a month outside 1 to 13");
}

std::string_view monthEmoji(std::int64_t month) {
    return entry(monthEmojis, month, "a month outside 1 to 13");
}

std::string_view dayName(std::int64_t decadeDay) {
    return entry(dayNames, decadeDay, "a day of the décade outside 1 to 10");
}

std::string_view sansculottidesName(std::int64_t day) {
    return entry(sansculottidesNames, day, "a complementary day outside 1 to 6");
}

} // namespace tambrelle::RevolutionaryCalendar
