// The conversions against counts made another way, over every zone of the system's zone data: the zone's file
// is read here without the C library, civil dates come from <chrono>, Republican ones from a walk day by day.

#include "core/GregorianCalendar.h"
#include "core/RevolutionaryCalendar.h"
#include "tests/core/ZoneFile.h"
#include "tests/support/Lack.h"
#include "tests/support/ScopedTimeZone.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace tambrelle {
namespace {

using test::OffsetChange;
using test::ZoneFile;

constexpr std::int64_t day = 86'400;
constexpr std::int64_t lastYear = 2400;

#if defined(__SANITIZE_ADDRESS__)
constexpr std::int64_t stepOfDays = 1009; // the sanitizers take their time
#else
constexpr std::int64_t stepOfDays = 211; // shares no divisor with the week, the décade or the year's cycle
#endif

std::int64_t secondsAt(int year, int month, int dayOfMonth) {
    return std::chrono::sys_seconds{std::chrono::sys_days{std::chrono::year{year} / month / dayOfMonth}}
        .time_since_epoch()
        .count();
}

const std::int64_t epoch = secondsAt(1792, 9, 22);
const std::int64_t begin = secondsAt(1792, 1, 1);
const std::int64_t end = secondsAt(lastYear + 1, 1, 1);
const std::int64_t farAhead = secondsAt(2060, 1, 1);

Instant instantAt(std::int64_t seconds) {
    return Instant{std::chrono::seconds{seconds}};
}

std::int64_t floorDivision(std::int64_t dividend, std::int64_t divisor) {
    return dividend / divisor - (dividend % divisor < 0 ? 1 : 0);
}

CivilComponents civilOf(std::int64_t wall) {
    using namespace std::chrono;
    const sys_seconds time{seconds{wall}};
    const year_month_day date{floor<days>(time)};
    const hh_mm_ss timeOfDay{time - floor<days>(time)};
    return {int{date.year()},          unsigned{date.month()},      unsigned{date.day()},
            timeOfDay.hours().count(), timeOfDay.minutes().count(), timeOfDay.seconds().count()};
}

// Every Republican day from the epoch on, each found from the one before.
std::vector<RevolutionaryDate> walkThroughTheDays(std::int64_t count) {
    std::vector<RevolutionaryDate> dates;
    RevolutionaryDate date{1, 1, 1, 1};
    for (std::int64_t index = 0; index < count; ++index) {
        dates.push_back(date);
        const std::int64_t lastDay = date.month < 13 ? 30 : date.year % 4 == 3 ? 6 : 5;
        if (date.day < lastDay) {
            ++date.day;
            date.decadeDay = date.decadeDay == 10 ? 1 : date.decadeDay + 1;
        } else if (date.month < 13) {
            date = {date.year, date.month + 1, 1, 1};
        } else {
            date = {date.year + 1, 1, 1, 1};
        }
    }
    return dates;
}

std::string contentsOf(const std::filesystem::path& path) {
    std::ostringstream contents;
    contents << std::ifstream{path, std::ios::binary}.rdbuf();
    return contents.str();
}

struct Tally {
    std::int64_t zones = 0;
    std::int64_t instants = 0;
    std::int64_t wallTimes = 0;
    std::int64_t skipped = 0;
};

class ZoneSweep : public testing::Test {
protected:
    static void SetUpTestSuite() { republicanDays_ = walkThroughTheDays((end - epoch) / day + 2); }

    void sweep(const std::filesystem::path& folder, bool leapSeconds) {
        Tally tally;
        std::set<std::string> seen; // many names share one file's content
        for (const auto& entry : std::filesystem::recursive_directory_iterator{folder}) {
            if (!entry.is_regular_file())
                continue;
            const auto [bytes, isNew] = seen.insert(contentsOf(entry.path()));
            if (!isNew)
                continue;
            const auto zone = ZoneFile::read(*bytes, lastYear);
            if (!zone || zone->countsLeapSeconds() != leapSeconds)
                continue;
            ++tally.zones;
            std::string name{":"};
            name += entry.path().string();
            const test::ScopedTimeZone guard{name};
            SCOPED_TRACE(entry.path().string());
            sweepZone(*zone, tally);
            if (HasFatalFailure())
                return;
        }
        std::cout << tally.zones << " zones, " << tally.instants << " instants, " << tally.wallTimes
                  << " wall-clock times of which " << tally.skipped << " do not exist\n";
        EXPECT_GT(tally.zones, 250) << "is the system's zone data (tzdata) installed?";
        EXPECT_GT(tally.skipped, 10'000);
    }

private:
    void sweepZone(const ZoneFile& zone, Tally& tally) {
        // A rule beyond the list and leap seconds together are not defined well enough to be judged.
        const bool stopsAtTheList = zone.countsLeapSeconds() && zone.followsARule();
        const std::int64_t stop = stopsAtTheList ? zone.lastListedChange() - 2 * day : end - 2 * day;

        for (std::int64_t at = begin + tally.zones % stepOfDays * day; at < stop; at += stepOfDays * day)
            checkAroundMidnight(zone, at, tally);

        // Far ahead a rule only repeats itself; every ninth change meets both of the year's in turn.
        const auto& changes = zone.changes();
        std::int64_t farChanges = 0;
        for (auto change = std::next(changes.begin()); change != changes.end(); ++change) {
            if (change->at < begin || change->at > stop || (change->at > farAhead && farChanges++ % 9 != 0))
                continue;
            for (const std::int64_t distance : {-3600, -1800, -1, 0, 1, 1800, 3600})
                checkInstant(zone, change->at + distance, tally);
            for (const std::int64_t days : {-1, 0, 1})
                checkAroundMidnight(zone, change->at + days * day, tally);
            checkWallTimes(zone, std::prev(change)->offset, *change, tally);
            if (HasFatalFailure())
                return;
        }
    }

    void checkAroundMidnight(const ZoneFile& zone, std::int64_t at, Tally& tally) {
        const std::int64_t offset = zone.offsetAt(at);
        const std::int64_t midnight = floorDivision(at + offset, day) * day - offset;
        for (const std::int64_t distance : {-1, 0, 1})
            checkInstant(zone, midnight + distance, tally);
    }

    void checkInstant(const ZoneFile& zone, std::int64_t at, Tally& tally) {
        ++tally.instants;
        const std::int64_t wall = zone.wallAt(at);
        const Instant instant = instantAt(at);
        ASSERT_EQ(GregorianCalendar::components(instant), civilOf(wall)) << at;

        const std::int64_t dayNumber = floorDivision(wall - epoch, day);
        const auto& expected =
            republicanDays_[static_cast<std::size_t>(std::max<std::int64_t>(dayNumber, 0))];
        ASSERT_EQ(RevolutionaryCalendar::fromGregorian(instant), expected) << at;

        const std::int64_t second = wall - floorDivision(wall, day) * day;
        const std::int64_t decimal = second * 125 / 108;
        ASSERT_EQ(RevolutionaryCalendar::toDecimalTime(instant),
                  (DecimalTime{decimal / 10'000, decimal / 100 % 100, decimal % 100}))
            << at;
    }

    // The way back, just before, within and just after what a change of offset skips or repeats.
    void checkWallTimes(const ZoneFile& zone, std::int64_t offsetBefore, const OffsetChange& change,
                        Tally& tally) {
        const std::int64_t low = change.at + std::min(offsetBefore, change.offset);
        const std::int64_t high = change.at + std::max(offsetBefore, change.offset);
        const std::set<std::int64_t> walls{low - 1, low, low + (high - low) / 2, high - 1, high};
        const Instant epochHere = instantAt(zone.firstAt(epoch).value());
        for (const std::int64_t wall : walls) {
            ++tally.wallTimes;
            const CivilComponents civil = civilOf(wall);
            const auto first = zone.firstAt(wall);
            const auto found = GregorianCalendar::instant(civil);
            ASSERT_EQ(found.has_value(), first.has_value()) << wall;
            const auto next = GregorianCalendar::nextInstant(civil);
            ASSERT_TRUE(next.has_value()) << wall;

            std::int64_t kept = wall - offsetBefore; // where a skipped time goes on
            if (first) {
                ASSERT_EQ(*found, instantAt(*first)) << wall;
                ASSERT_EQ(*next, instantAt(*first)) << wall;
                kept = *first;
            } else {
                ++tally.skipped;
                ASSERT_EQ(*next, instantAt(change.at)) << wall;
            }
            for (const std::int64_t days : {-3, 400}) {
                const auto from = zone.firstAt(wall - days * day);
                if (from) {
                    ASSERT_EQ(GregorianCalendar::addingDays(days, instantAt(*from)), instantAt(kept)) << wall;
                }
            }
            const std::int64_t wholeDays = (zone.wallAt(kept) - epoch) / day;
            ASSERT_EQ(GregorianCalendar::daysBetween(epochHere, instantAt(kept)), wholeDays) << wall;
        }
    }

    static inline std::vector<RevolutionaryDate> republicanDays_;
};

TEST_F(ZoneSweep, AgreesInEveryZone) {
    sweep("/usr/share/zoneinfo", false);
}

TEST_F(ZoneSweep, AgreesInEveryZoneThatCountsLeapSeconds) {
    if (!std::filesystem::exists("/usr/share/zoneinfo/right")) {
        ASSERT_TRUE(test::mayLack("zones that count leap seconds"));
        GTEST_SKIP();
    }
    sweep("/usr/share/zoneinfo/right", true);
}

} // namespace
} // namespace tambrelle
