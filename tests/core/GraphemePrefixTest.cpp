#include "core/GraphemePrefix.h"
#include "core/RevolutionaryCalendar.h"

#include <gtest/gtest.h>

#include <string>

namespace tambrelle {
namespace {

TEST(GraphemePrefix, TakesTheCountAskedFor) {
    EXPECT_EQ(graphemePrefix("Brumaire", 4), "Brum");
    EXPECT_EQ(graphemePrefix("Brumaire", 0), "");
    EXPECT_EQ(graphemePrefix("Brum", 4), "Brum");
    EXPECT_EQ(graphemePrefix("Bru", 4), "Bru");
    EXPECT_EQ(graphemePrefix("", 4), "");
}

TEST(GraphemePrefix, CountsAnAccentedLetterOnce) {
    EXPECT_EQ(graphemePrefix("Nivôse", 4), "Nivô");
    EXPECT_EQ(graphemePrefix("Nivo\u0302se", 4), "Nivo\u0302");
    EXPECT_EQ(graphemePrefix("e\u0301\u0323x", 1), "e\u0301\u0323");
    EXPECT_EQ(graphemePrefix("1\uFE0F\u20E3"
                             "2",
                             1),
              "1\uFE0F\u20E3");
}

TEST(GraphemePrefix, KeepsAnEmojiSequenceWhole) {
    const std::string judge = "\U0001F468\u200D\u2696\uFE0F";
    const std::string brokenChain = "\u26D3\uFE0F\u200D\U0001F4A5";
    const std::string family = "\U0001F468\u200D\U0001F469\u200D\U0001F467";
    const std::string darkJudge = "\U0001F468\U0001F3FF\u200D\u2696\uFE0F";
    for (const auto& emoji : {judge, brokenChain, family, darkJudge}) {
        EXPECT_EQ(graphemePrefix(emoji, 1), emoji);
        EXPECT_EQ(graphemePrefix(emoji + "x", 1), emoji);
        EXPECT_EQ(graphemePrefix(emoji + emoji, 1), emoji);
        EXPECT_EQ(graphemePrefix("x" + emoji + "y", 2), "x" + emoji);
    }
}

TEST(GraphemePrefix, DoesNotJoinWithoutTwoEmoji) {
    EXPECT_EQ(graphemePrefix("a\u200D\U0001F4A5", 1), "a\u200D");
    EXPECT_EQ(graphemePrefix("\U0001F4A5\u200D"
                             "a",
                             1),
              "\U0001F4A5\u200D");
    EXPECT_EQ(graphemePrefix("\U0001F4A5\U0001F4A5", 1), "\U0001F4A5");
}

TEST(GraphemePrefix, PairsRegionalIndicators) {
    const std::string france = "\U0001F1EB\U0001F1F7";
    EXPECT_EQ(graphemePrefix(france + france, 1), france);
    EXPECT_EQ(graphemePrefix(france + france, 2), france + france);
    EXPECT_EQ(graphemePrefix(france + "\U0001F1EB", 2), france + "\U0001F1EB");
    EXPECT_EQ(graphemePrefix("\U0001F1EB\u200D\U0001F1F7", 1), "\U0001F1EB\u200D");
    const std::string scotland = "\U0001F3F4\U000E0067\U000E0062\U000E0073\U000E0063\U000E0074\U000E007F";
    EXPECT_EQ(graphemePrefix(scotland + "x", 1), scotland);
}

TEST(GraphemePrefix, KeepsLineEndsApart) {
    EXPECT_EQ(graphemePrefix("\r\nx", 1), "\r\n");
    EXPECT_EQ(graphemePrefix("\n\rx", 1), "\n");
    EXPECT_EQ(graphemePrefix("\n\u0301", 1), "\n");
}

TEST(GraphemePrefix, CountsEachMalformedByte) {
    EXPECT_EQ(graphemePrefix("\xff\xfe"
                             "ab",
                             3),
              "\xff\xfe"
              "a");
    EXPECT_EQ(graphemePrefix("\xe2\x82", 1), "\xe2");         // cut short
    EXPECT_EQ(graphemePrefix("\xc0\xaf", 1), "\xc0");         // longer than it need be
    EXPECT_EQ(graphemePrefix("\xed\xa0\x80", 1), "\xed");     // a surrogate
    EXPECT_EQ(graphemePrefix("\xf4\x90\x80\x80", 1), "\xf4"); // beyond U+10FFFF
    EXPECT_EQ(graphemePrefix("\xf4\x8f\xbf\xbf", 1), "\xf4\x8f\xbf\xbf");
}

TEST(GraphemePrefix, TakesEachMonthEmojiAsOne) {
    for (const auto emoji : RevolutionaryCalendar::monthEmojis)
        EXPECT_EQ(graphemePrefix(std::string{emoji} + "x", 1), emoji);
}

} // namespace
} // namespace tambrelle
