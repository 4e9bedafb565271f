#pragma once

#include "core/DecimalTime.h"
#include "core/Instant.h"
#include "core/RevolutionaryDate.h"
#include "tests/core/ZoneFile.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

namespace tambrelle::soak {

using Days = std::chrono::sys_days;

/// The wall clock of one zone and the Republican reading of it, made without the program's own calendar and
/// without the C library: the zone's file is read here, civil dates come from <chrono>, and Republican ones
/// from a walk over the years.
class WallClock final {
public:
    /// A zone by its name, which the system's zone data must have.
    explicit WallClock(const std::string& zone);

    /// Seconds since the wall clock's own 1970-01-01 00:00:00.
    [[nodiscard]] std::int64_t secondsAt(Instant instant) const;
    [[nodiscard]] Days dayAt(Instant instant) const;
    [[nodiscard]] RevolutionaryDate dateAt(Instant instant) const;
    [[nodiscard]] DecimalTime timeAt(Instant instant) const;

    /// The first instant at which the wall clock shows this time; absent where it skips it.
    [[nodiscard]] std::optional<Instant> first(Days day, std::int64_t hour, std::int64_t minute) const;
    /// As `first`, and for a time that is skipped the moment of the skip.
    [[nodiscard]] Instant firstOrSkip(Days day, std::int64_t hour, std::int64_t minute) const;
    /// The same wall-clock time some days later; a time that is skipped comes later by the skip.
    [[nodiscard]] Instant plusDays(Instant instant, std::int64_t days) const;

    [[nodiscard]] static RevolutionaryDate republican(Days day);

private:
    /// The offset that holds from `begin` to before `end`, for the instants asked for one after another.
    struct Stretch {
        std::int64_t begin = 0;
        std::int64_t end = 0;
        std::int64_t offset = 0;
    };

    struct Converted {
        Days day{};
        RevolutionaryDate date{};
    };

    [[nodiscard]] std::int64_t changeOver(std::int64_t wall) const;

    test::ZoneFile zone;
    mutable Stretch stretch;
    mutable Converted converted{.day = {}, .date = republican({})};
};

} // namespace tambrelle::soak
