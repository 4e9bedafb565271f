#include "core/GregorianCalendar.h"

#include "core/CivilDays.h"

#include <algorithm>
#include <ctime>
#include <limits>

namespace tambrelle::GregorianCalendar {
namespace {

// Seconds since 1970-01-01 00:00:00 UTC.
using UnixSeconds = std::int64_t;
// What a wall clock shows, as seconds since its own 1970-01-01 00:00:00.
using WallSeconds = std::int64_t;

// localtime_r alone is free to keep the zone that the process began with.
void readZoneAgain() {
    tzset();
}

std::optional<CivilComponents> wallClock(UnixSeconds at) {
    const std::time_t time = at;
    std::tm local{};
    if (localtime_r(&time, &local) == nullptr)
        return std::nullopt;
    return CivilComponents{std::int64_t{local.tm_year} + 1900,
                           std::int64_t{local.tm_mon} + 1,
                           local.tm_mday,
                           local.tm_hour,
                           local.tm_min,
                           std::min(local.tm_sec, 59)};
}

WallSeconds wallSeconds(const CivilComponents& civil) {
    return civilDayNumber(civil.year, civil.month, civil.day) * secondsPerDay + civil.hour * 3600 +
           civil.minute * 60 + civil.second;
}

std::optional<WallSeconds> wallSecondsAt(UnixSeconds at) {
    const auto civil = wallClock(at);
    if (!civil)
        return std::nullopt;
    return wallSeconds(*civil);
}

// Never negative. std::chrono::floor would overflow at the earliest instants, whose second began before them.
Instant::duration fractionOfSecond(Instant instant) {
    constexpr Instant::duration second = std::chrono::seconds{1};
    const auto remainder = instant.time_since_epoch() % second;
    return remainder < Instant::duration::zero() ? remainder + second : remainder;
}

UnixSeconds wholeSeconds(Instant instant) {
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(instant.time_since_epoch()).count();
    const bool isCutUpwards =
        instant.time_since_epoch() % std::chrono::seconds{1} < Instant::duration::zero();
    return isCutUpwards ? seconds - 1 : seconds;
}

std::optional<Instant> makeInstant(UnixSeconds seconds, Instant::duration fraction) {
    std::int64_t microseconds = 0;
    if (__builtin_mul_overflow(seconds, std::int64_t{1'000'000}, &microseconds) ||
        __builtin_add_overflow(microseconds, std::int64_t{fraction.count()}, &microseconds))
        return std::nullopt;
    return Instant{Instant::duration{microseconds}};
}

// Where a wall-clock time lies on the line of instants.
struct Resolution {
    std::optional<UnixSeconds> first;         // when it is first shown
    std::optional<UnixSeconds> afterSkip;     // when the wall clock has just skipped it
    std::optional<UnixSeconds> shiftedBySkip; // as if the offset from before the skip went on
};

// What the wall clock is ahead of universal time, leap seconds included where the zone data counts them.
std::optional<std::int64_t> offsetAt(UnixSeconds at) {
    const auto wall = wallSecondsAt(at);
    if (!wall)
        return std::nullopt;
    return *wall - at;
}

// The first second of the new offset where the offset changes once within (early, late].
UnixSeconds changeOfOffset(UnixSeconds early, UnixSeconds late) {
    const auto offsetBefore = offsetAt(early);
    while (late - early > 1) {
        const UnixSeconds middle = early + (late - early) / 2;
        (offsetAt(middle) == offsetBefore ? early : late) = middle;
    }
    return late;
}

// The C library answers only in the direction from an instant to the wall clock. So we walk over all instants
// at which the wall clock can show the target (no offset reaches 30 hours), in steps shorter than any offset
// has ever lasted (the shortest lasted for four days), and try each offset that we meet. Absent beyond the C
// library's range.
std::optional<Resolution> resolve(WallSeconds target) {
    constexpr std::int64_t farthestOffset = std::int64_t{30} * 3600;
    constexpr std::int64_t step = std::int64_t{6} * 3600;

    Resolution found;
    const auto tryOffset = [&found, target](std::int64_t offset) {
        const UnixSeconds candidate = target - offset;
        if (wallSecondsAt(candidate) == target && (!found.first || candidate < *found.first))
            found.first = candidate;
    };

    UnixSeconds at = target - farthestOffset;
    auto offset = offsetAt(at);
    if (!offset)
        return std::nullopt;
    tryOffset(*offset);
    while (at < target + farthestOffset) {
        const UnixSeconds ahead = at + step;
        const auto offsetAhead = offsetAt(ahead);
        if (!offsetAhead)
            return std::nullopt;
        if (offsetAhead == offset) {
            at = ahead;
            continue;
        }
        at = changeOfOffset(at, ahead);
        const std::int64_t offsetBefore = *offset;
        offset = offsetAt(at);
        if (!offset)
            return std::nullopt;
        if (at + offsetBefore <= target && target < at + *offset) {
            found.afterSkip = at;
            found.shiftedBySkip = target - offsetBefore;
        }
        tryOffset(*offset);
    }
    return found;
}

bool isWithin(std::int64_t value, std::int64_t low, std::int64_t high) {
    return low <= value && value <= high;
}

bool areInRange(const CivilComponents& civil) {
    return isWithin(civil.year, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()) &&
           isWithin(civil.month, 1, 12) &&
           isWithin(civil.day, 1, daysInGregorianMonth(civil.year, civil.month)) &&
           isWithin(civil.hour, 0, 23) && isWithin(civil.minute, 0, 59) && isWithin(civil.second, 0, 59);
}

std::optional<Resolution> resolveComponents(const CivilComponents& civil) {
    if (!areInRange(civil))
        return std::nullopt;
    readZoneAgain();
    return resolve(wallSeconds(civil));
}

} // namespace

std::optional<CivilComponents> components(Instant instant) {
    readZoneAgain();
    return wallClock(wholeSeconds(instant));
}

std::optional<std::chrono::seconds> steadyOffset(Instant instant, std::chrono::seconds span) {
    readZoneAgain();
    const UnixSeconds at = wholeSeconds(instant);
    const auto offset = offsetAt(at);
    if (!offset || offset != offsetAt(at + span.count()))
        return std::nullopt;
    return std::chrono::seconds{*offset};
}

std::optional<Instant> instant(const CivilComponents& components) {
    const auto resolution = resolveComponents(components);
    if (!resolution || !resolution->first)
        return std::nullopt;
    return makeInstant(*resolution->first, {});
}

std::optional<Instant> nextInstant(const CivilComponents& components) {
    const auto resolution = resolveComponents(components);
    if (!resolution)
        return std::nullopt;
    const auto seconds = resolution->first ? resolution->first : resolution->afterSkip;
    return seconds ? makeInstant(*seconds, {}) : std::nullopt;
}

std::optional<std::int64_t> daysBetween(Instant from, Instant to) {
    readZoneAgain();
    const auto wallFrom = wallSecondsAt(wholeSeconds(from));
    const auto wallTo = wallSecondsAt(wholeSeconds(to));
    if (!wallFrom || !wallTo)
        return std::nullopt;
    // In microseconds the span could overflow: whole seconds first, then the fraction that may be missing.
    std::int64_t seconds = *wallTo - *wallFrom;
    const auto fraction = fractionOfSecond(to) - fractionOfSecond(from);
    if (seconds > 0 && fraction < Instant::duration::zero())
        --seconds;
    else if (seconds < 0 && fraction > Instant::duration::zero())
        ++seconds;
    const std::int64_t days = seconds / secondsPerDay;
    // Where a zone lived a whole day twice, the wall clock may run back a day while time goes on.
    return from <= to ? std::max<std::int64_t>(days, 0) : std::min<std::int64_t>(days, 0);
}

std::optional<Instant> addingDays(std::int64_t days, Instant instant) {
    if (days == 0)
        return instant;
    readZoneAgain();
    const auto wall = wallSecondsAt(wholeSeconds(instant));
    std::int64_t target = 0;
    constexpr std::int64_t farthest = std::numeric_limits<std::int64_t>::max() / 4;
    if (!wall || __builtin_mul_overflow(days, secondsPerDay, &target) ||
        __builtin_add_overflow(target, *wall, &target) || target > farthest || target < -farthest)
        return std::nullopt;
    const auto resolution = resolve(target);
    if (!resolution)
        return std::nullopt;
    const auto seconds = resolution->first ? resolution->first : resolution->shiftedBySkip;
    return seconds ? makeInstant(*seconds, fractionOfSecond(instant)) : std::nullopt;
}

} // namespace tambrelle::GregorianCalendar
