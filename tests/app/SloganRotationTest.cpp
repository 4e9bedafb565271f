#include "app/Text.h"
#include "content/HistoricalData.h"
#include "tests/support/LiveState.h"

#include <chrono>

namespace tambrelle {
namespace {

using namespace std::chrono;

class SloganRotationTest : public test::LiveState {
protected:
    [[nodiscard]] static QString slogan(std::size_t index) {
        return toQString(HistoricalData::slogans.at(index));
    }
};

TEST_F(SloganRotationTest, StartUpSloganStaysForThreeHundredSeconds) {
    platform.random.addIndex(4);
    platform.random.addIndex(5);
    launch();
    for (auto passed = 864ms; passed < 300s; passed += 864ms)
        tickAt(noon + passed);
    EXPECT_EQ(calendar->currentSlogan(), slogan(4));
    EXPECT_EQ(platform.random.draws, 1);
}

TEST_F(SloganRotationTest, RotatesAfterMoreThanThreeHundredSeconds) {
    platform.random.addIndex(4);
    platform.random.addIndex(5);
    launch();
    tickAt(noon + 300s);
    EXPECT_EQ(calendar->currentSlogan(), slogan(4)) << "300.0 s exactly";
    tickAt(noon + 300'001ms);
    EXPECT_EQ(calendar->currentSlogan(), slogan(5));
}

TEST_F(SloganRotationTest, PeriodCountsFromTheLastRotation) {
    platform.random.addIndex(0);
    platform.random.addIndex(1);
    platform.random.addIndex(2);
    launch();
    const Instant rotated = noon + 400s;
    tickAt(rotated);
    EXPECT_EQ(calendar->currentSlogan(), slogan(1));
    tickAt(rotated + 300s);
    EXPECT_EQ(calendar->currentSlogan(), slogan(1));
    tickAt(rotated + 300s + 1us);
    EXPECT_EQ(calendar->currentSlogan(), slogan(2));
}

TEST_F(SloganRotationTest, EverySloganComesByItsIndex) {
    platform.random.addIndex(9);
    for (std::size_t index = 0; index < HistoricalData::slogans.size(); ++index)
        platform.random.addIndex(index);
    launch();
    EXPECT_EQ(calendar->currentSlogan(), slogan(9));
    Instant at = noon;
    for (std::size_t index = 0; index < HistoricalData::slogans.size(); ++index) {
        at += 301s;
        tickAt(at);
        EXPECT_EQ(calendar->currentSlogan(), slogan(index));
    }
}

TEST_F(SloganRotationTest, TheSameSloganMayComeAgainAndIsAnnounced) {
    platform.random.addIndex(3);
    platform.random.addIndex(3);
    launch();
    const test::Announcements announcements(*calendar);
    tickAt(noon + 301s);
    EXPECT_EQ(calendar->currentSlogan(), slogan(3));
    EXPECT_EQ(platform.random.draws, 2);
    EXPECT_EQ(announcements.count, 2) << "the slogan and the time";
}

TEST_F(SloganRotationTest, AWordThatWouldFavourAnIndexIsDrawnAgain) {
    platform.random.addIndex(0);
    platform.random.addWord(0);
    platform.random.addIndex(6);
    launch();
    tickAt(noon + 301s);
    EXPECT_EQ(calendar->currentSlogan(), slogan(6));
    EXPECT_EQ(platform.random.draws, 3);
}

TEST_F(SloganRotationTest, ClockSetBackFreezesTheSloganUntilItHasCaughtUp) {
    platform.random.addIndex(1);
    platform.random.addIndex(2);
    launch();
    tickAt(noon - 1h);
    tickAt(noon - 1h + 301s);
    tickAt(noon);
    tickAt(noon + 300s);
    EXPECT_EQ(calendar->currentSlogan(), slogan(1));
    tickAt(noon + 301s);
    EXPECT_EQ(calendar->currentSlogan(), slogan(2));
}

TEST_F(SloganRotationTest, ClockSetForwardDrawsAtOnce) {
    platform.random.addIndex(1);
    platform.random.addIndex(2);
    launch();
    tickAt(noon + hours(24 * 365 * 100));
    EXPECT_EQ(calendar->currentSlogan(), slogan(2));
    EXPECT_EQ(platform.random.draws, 2) << "once, however much time has passed";
}

} // namespace
} // namespace tambrelle
