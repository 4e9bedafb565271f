#include "tests/soak/WallClock.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <limits>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace tambrelle::soak {

namespace {

/// Summer time is told up to here, beyond any day that a user walks to.
constexpr int lastYear = 2300;
constexpr std::int64_t civilSecondsPerDay = 86'400;

test::ZoneFile readZone(const std::string& name) {
    std::ifstream file("/usr/share/zoneinfo/" + name, std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    auto zone = test::ZoneFile::read(bytes.str(), lastYear);
    if (!zone)
        throw std::runtime_error("the system has no zone " + name);
    return std::move(*zone);
}

std::int64_t seconds(Instant instant) {
    return std::chrono::floor<std::chrono::seconds>(instant).time_since_epoch().count();
}

std::int64_t floorDivide(std::int64_t value, std::int64_t by) {
    return value / by - (value % by < 0 ? 1 : 0);
}

Instant atSeconds(std::int64_t value) {
    return Instant(std::chrono::seconds(value));
}

std::int64_t wallTime(Days day, std::int64_t hour, std::int64_t minute) {
    return std::int64_t{day.time_since_epoch().count()} * civilSecondsPerDay + hour * 3600 + minute * 60;
}

} // namespace

WallClock::WallClock(const std::string& zone) : zone(readZone(zone)) {}

std::int64_t WallClock::secondsAt(Instant instant) const {
    const std::int64_t at = seconds(instant);
    if (at < stretch.begin || at >= stretch.end) {
        const auto& changes = zone.changes();
        const auto next = std::find_if(changes.begin(), changes.end(),
                                       [at](const test::OffsetChange& change) { return change.at > at; });
        const auto present = std::prev(next);
        const auto end = next == changes.end() ? std::numeric_limits<std::int64_t>::max() : next->at;
        stretch = {.begin = present->at, .end = end, .offset = present->offset};
    }
    return at + stretch.offset;
}

Days WallClock::dayAt(Instant instant) const {
    return Days(std::chrono::days(floorDivide(secondsAt(instant), civilSecondsPerDay)));
}

RevolutionaryDate WallClock::dateAt(Instant instant) const {
    const Days day = dayAt(instant);
    if (day != converted.day)
        converted = {.day = day, .date = republican(day)};
    return converted.date;
}

DecimalTime WallClock::timeAt(Instant instant) const {
    const std::int64_t wall = secondsAt(instant);
    const std::int64_t ofDay = wall - floorDivide(wall, civilSecondsPerDay) * civilSecondsPerDay;
    // 108 civil seconds are 125 decimal ones.
    const std::int64_t decimal = ofDay * 125 / 108;
    return {.hours = decimal / 10'000, .minutes = decimal / 100 % 100, .seconds = decimal % 100};
}

std::optional<Instant> WallClock::first(Days day, std::int64_t hour, std::int64_t minute) const {
    const auto found = zone.firstAt(wallTime(day, hour, minute));
    return found ? std::optional(atSeconds(*found)) : std::nullopt;
}

std::int64_t WallClock::changeOver(std::int64_t wall) const {
    for (std::size_t index = 1; index < zone.changes().size(); ++index) {
        const auto& change = zone.changes()[index];
        const std::int64_t before = zone.changes()[index - 1].offset;
        if (change.at + before <= wall && wall < change.at + change.offset)
            return change.at;
    }
    throw std::logic_error("a time that is neither shown nor skipped");
}

Instant WallClock::firstOrSkip(Days day, std::int64_t hour, std::int64_t minute) const {
    const auto shown = first(day, hour, minute);
    return shown ? *shown : atSeconds(changeOver(wallTime(day, hour, minute)));
}

Instant WallClock::plusDays(Instant instant, std::int64_t days) const {
    if (days == 0)
        return instant;
    const std::int64_t wall = secondsAt(instant) + days * civilSecondsPerDay;
    const auto fraction = instant - std::chrono::floor<std::chrono::seconds>(instant);
    if (const auto shown = zone.firstAt(wall))
        return atSeconds(*shown) + fraction;
    const std::int64_t change = changeOver(wall);
    return atSeconds(wall - zone.offsetAt(change - 1)) + fraction;
}

RevolutionaryDate WallClock::republican(Days day) {
    using namespace std::chrono;
    std::int64_t left = (day - Days(1792y / September / 22)).count();
    std::int64_t year = 1;
    // The third year of each four has the leap day, from the first on.
    for (std::int64_t length = 365; left >= length; length = year % 4 == 3 ? 366 : 365) {
        left -= length;
        ++year;
    }
    return {.year = year, .month = left / 30 + 1, .day = left % 30 + 1, .decadeDay = left % 30 % 10 + 1};
}

} // namespace tambrelle::soak
