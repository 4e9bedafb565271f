#pragma once

#include "core/Instant.h"

#include <cstdint>
#include <optional>

namespace tambrelle {

/// What a wall clock and a wall calendar show: proleptic Gregorian, without time zone or fractions.
struct CivilComponents {
    std::int64_t year;   ///< astronomical: 0 is 1 BC
    std::int64_t month;  ///< 1 to 12
    std::int64_t day;    ///< 1 to 31
    std::int64_t hour;   ///< 0 to 23
    std::int64_t minute; ///< 0 to 59
    std::int64_t second; ///< 0 to 59

    bool operator==(const CivilComponents&) const = default;
};

/// The civil calendar in the system's current time zone. The zone is read again at each call, so that a
/// change of TZ or of /etc/localtime counts at once. A TZ that names no zone means UTC.
namespace GregorianCalendar {

/// The wall clock at the instant; a fraction of a second is dropped towards the past, and a leap second,
/// where the zone data counts them, reads 59. Absent where the year does not fit an int.
std::optional<CivilComponents> components(Instant instant);

/// What the wall clock is ahead of universal time at the instant and still is when `span` has passed, which
/// is shorter than any offset has ever lasted: four days. Absent where it is another by then, and where
/// `components` is absent at either end.
std::optional<std::chrono::seconds> steadyOffset(Instant instant, std::chrono::seconds span);

/// The instant at which the wall clock shows these components, the first one where it shows them twice.
/// Absent where a field is out of its range (nothing is carried over), where the wall clock never shows them
/// because a change of the zone's offset skips them, and where the instant is out of range.
std::optional<Instant> instant(const CivilComponents& components);

/// As `instant`, but components that the wall clock skips give the first instant after the skip: 02:30 on the
/// morning on which 02:00 becomes 03:00 gives 03:00.
std::optional<Instant> nextInstant(const CivilComponents& components);

/// Whole calendar days from one instant to another by the wall clock, truncated toward zero: from noon to the
/// next morning is 0, to the next noon 1, whatever the length of that day. Absent where `components` is.
std::optional<std::int64_t> daysBetween(Instant from, Instant to);

/// The instant whole calendar days later (earlier if negative) at the same wall-clock time, the first one
/// where that occurs twice. A time that the wall clock skips comes later by the length of the skip: 02:30
/// gives 03:30. No days give the instant itself. Absent where the result is out of range.
std::optional<Instant> addingDays(std::int64_t days, Instant instant);

} // namespace GregorianCalendar
} // namespace tambrelle
