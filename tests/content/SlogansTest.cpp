#include "content/HistoricalData.h"

#include "tests/fakes/FakeRandomSource.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <map>
#include <random>
#include <string_view>

namespace tambrelle {
namespace {

using HistoricalData::randomSlogan;
using HistoricalData::slogans;

class SeededWords : public RandomSource {
public:
    std::uint64_t next() override { return engine_(); }

private:
    std::mt19937_64 engine_{1792};
};

TEST(Slogans, AreTheTen) {
    EXPECT_THAT(slogans, testing::ElementsAre(
                             "Liberté, Égalité, Fraternité", "Vivre libre ou mourir",
                             "La République une et indivisible", "Guerre aux tyrans, paix aux chaumières",
                             "Le peuple français reconnaît l'Être suprême",
                             "Unité, Indivisibilité de la République", "Les aristocrates à la lanterne!",
                             "Ça ira, ça ira, ça ira", "La patrie en danger!", "Aux armes, citoyens!"));
    EXPECT_EQ(slogans[4], "Le peuple fran\u00E7ais reconna\u00EEt l'\u00CAtre supr\u00EAme");
}

TEST(Slogans, AreDrawnByTheHighHalfOfTheProduct) {
    fakes::FakeRandomSource words{{0, 1, 0xFFFF'FFFF'FFFF'FFFF, 0x7FFF'FFFF'FFFF'FFFF}};
    EXPECT_EQ(randomSlogan(words), slogans[0]); // the word 0 is drawn again
    EXPECT_EQ(randomSlogan(words), slogans[9]);
    EXPECT_EQ(randomSlogan(words), slogans[4]);
    EXPECT_EQ(words.draws, 4);
}

TEST(Slogans, AllOccurAboutEquallyOftenAndMayRepeat) {
    SeededWords words;
    constexpr int draws = 100'000;
    std::map<std::string_view, int> counts;
    constexpr double share = draws / 10.0;
    int repeats = 0;
    std::string_view previous;
    for (int draw = 0; draw < draws; ++draw) {
        const std::string_view slogan = randomSlogan(words);
        ++counts[slogan];
        repeats += slogan == previous ? 1 : 0;
        previous = slogan;
    }
    ASSERT_EQ(counts.size(), slogans.size());
    for (const auto& [slogan, count] : counts)
        EXPECT_NEAR(count, share, share / 20) << slogan;
    EXPECT_NEAR(repeats, share, share / 20);
}

} // namespace
} // namespace tambrelle
