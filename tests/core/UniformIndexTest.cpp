#include "core/UniformIndex.h"

#include "tests/fakes/FakeRandomSource.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <limits>

namespace tambrelle {
namespace {

constexpr std::uint64_t greatestWord = std::numeric_limits<std::uint64_t>::max();

// The least word whose product with 10 has this high half: index * 2^64 / 10, rounded up, where 2^64
// leaves 6.
constexpr std::uint64_t firstWordOf(std::uint64_t index) {
    return greatestWord / 10 * index + (6 * index + 9) / 10;
}

TEST(UniformIndex, IsTheHighHalfOfTheProduct) {
    fakes::FakeRandomSource words{{greatestWord, greatestWord / 2, greatestWord / 2 + 1, greatestWord / 10}};
    EXPECT_EQ(uniformIndex(words, 10), 9u);
    EXPECT_EQ(uniformIndex(words, 10), 4u);
    // 2^63 times 10 has a low half of 0, which is drawn again; what follows is 10 * floor((2^64 - 1) / 10).
    EXPECT_EQ(uniformIndex(words, 10), 0u);
    EXPECT_EQ(words.draws, 4);
}

TEST(UniformIndex, RejectsTheSixLowHalvesBelowSix) {
    // Of the products with 10 the low halves are even: word 0 has 0, the first word of index 3 has 2, and so
    // on.
    for (std::uint64_t index = 0; index < 10; ++index) {
        const std::uint64_t first = firstWordOf(index);
        const std::uint64_t low = first * 10;
        fakes::FakeRandomSource words{{first, greatestWord}};
        if (low < 6) {
            EXPECT_EQ(uniformIndex(words, 10), 9u) << index;
            EXPECT_EQ(words.draws, 2) << index;
        } else {
            EXPECT_EQ(uniformIndex(words, 10), index);
            EXPECT_EQ(words.draws, 1) << index;
        }
    }
}

TEST(UniformIndex, TurnsRejectedWordsIntoEqualShares) {
    // What is left to each index after rejection is the same number of words.
    const auto acceptedWords = [](std::uint64_t index) {
        const std::uint64_t last = index == 9 ? greatestWord : firstWordOf(index + 1) - 1;
        std::uint64_t first = firstWordOf(index);
        if (first * 10 < 6)
            ++first;
        return last - first + 1;
    };
    for (std::uint64_t index = 1; index < 10; ++index)
        EXPECT_EQ(acceptedWords(index), acceptedWords(0)) << index;
}

TEST(UniformIndex, TakesEachWordOnceWhereTheBoundIsAPowerOfTwo) {
    fakes::FakeRandomSource words({0, 1, greatestWord});
    EXPECT_EQ(uniformIndex(words, 8), 0u);
    EXPECT_EQ(uniformIndex(words, 8), 0u);
    EXPECT_EQ(uniformIndex(words, 1), 0u);
    EXPECT_EQ(words.draws, 3);
}

TEST(UniformIndexDeathTest, StopsOnABoundOfZero) {
    fakes::FakeRandomSource words({1});
    EXPECT_DEATH(uniformIndex(words, 0), "index into nothing");
}

} // namespace
} // namespace tambrelle
