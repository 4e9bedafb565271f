#include "core/MomentReader.h"
#include "core/GregorianCalendar.h"
#include "core/RevolutionaryCalendar.h"
#include "tests/support/ScopedTimeZone.h"

#include <gtest/gtest.h>

#include <ostream>

namespace tambrelle {

void PrintTo(const RevolutionaryMoment& moment, std::ostream* out) {
    *out << moment.date.year << '-' << moment.date.month << '-' << moment.date.day << ' ' << moment.time.hours
         << ':' << moment.time.minutes << ':' << moment.time.seconds;
}

namespace {

using namespace std::chrono_literals;
using RevolutionaryCalendar::toMoment;
using std::chrono::sys_days;
using test::ScopedTimeZone;

constexpr Instant noonInParis = sys_days(2025y / 11 / 15) + 11h;

struct ChangeOfClocks {
    const char* zone;
    Instant at;
};

class MomentReaderTest : public testing::TestWithParam<ChangeOfClocks> {};

/// Every decimal second of the hours around a change of the zone's offset, in one state of the zone.
TEST_P(MomentReaderTest, IsRightAtEachTickAroundAChangeOfTheClocks) {
    const ScopedTimeZone zone{GetParam().zone};
    ASSERT_FALSE(GregorianCalendar::steadyOffset(GetParam().at - 1s, 2s)) << "no such change";
    MomentReader reader;
    for (Instant tick = GetParam().at - 1h; tick < GetParam().at + 1h; tick += 864ms)
        ASSERT_EQ(reader.at(tick, 1), toMoment(tick)) << tick.time_since_epoch().count();
}

INSTANTIATE_TEST_SUITE_P(
    Changes, MomentReaderTest,
    testing::Values(ChangeOfClocks{"Europe/Paris", sys_days(2025y / 3 / 30) + 1h},
                    ChangeOfClocks{"Europe/Paris", sys_days(2025y / 10 / 26) + 1h},
                    ChangeOfClocks{"Europe/Paris", sys_days(1911y / 3 / 10) + 23h + 50min + 39s},
                    ChangeOfClocks{"Africa/Cairo", sys_days(2025y / 4 / 24) + 22h},
                    ChangeOfClocks{"America/Sao_Paulo", sys_days(2018y / 11 / 4) + 3h},
                    ChangeOfClocks{"Pacific/Apia", sys_days(2011y / 12 / 30) + 10h},
                    ChangeOfClocks{"Australia/Lord_Howe", sys_days(2025y / 4 / 5) + 15h},
                    ChangeOfClocks{"right/Europe/Paris", sys_days(2017y / 1 / 1) + 26s}));

TEST(MomentReader, FollowsAJumpOfTheClock) {
    const ScopedTimeZone zone{"Europe/Paris"};
    MomentReader reader;
    for (const auto jump : {0h, 1h, -1h, 24h * 200, -24h * 200, -24h * 365 * 300})
        EXPECT_EQ(reader.at(noonInParis + jump, 1), toMoment(noonInParis + jump)) << jump.count();
    EXPECT_EQ(reader.at(noonInParis, 1), toMoment(noonInParis));
    EXPECT_EQ(reader.at(noonInParis - 1us, 1), toMoment(noonInParis - 1us));
}

TEST(MomentReader, ReadsTheZoneOnceInEachOfItsStates) {
    MomentReader reader;
    const ScopedTimeZone paris{"Europe/Paris"};
    const auto inParis = reader.at(noonInParis, 1);
    EXPECT_EQ(inParis, toMoment(noonInParis));
    const ScopedTimeZone tokyo{"Asia/Tokyo"};
    EXPECT_EQ(reader.at(noonInParis, 1), inParis) << "the same state";
    EXPECT_EQ(reader.at(noonInParis, 2), toMoment(noonInParis));
    EXPECT_NE(toMoment(noonInParis), inParis);
}

TEST(MomentReader, ReadsTheZoneEachTimeWhereItsStateIsNotKnown) {
    MomentReader reader;
    for (const char* name : {"Europe/Paris", "Asia/Tokyo", "America/Los_Angeles"}) {
        const ScopedTimeZone zone{name};
        EXPECT_EQ(reader.at(noonInParis, std::nullopt), toMoment(noonInParis)) << name;
    }
}

} // namespace
} // namespace tambrelle
