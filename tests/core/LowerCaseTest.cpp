#include "core/LowerCase.h"

#include <gtest/gtest.h>

namespace tambrelle {
namespace {

TEST(LowerCase, FoldsTheLettersOfFrench) {
    EXPECT_EQ(lowerCase("ABCXYZ abcxyz @[`{"), "abcxyz abcxyz @[`{");
    EXPECT_EQ(lowerCase("ÀÂÄÆÇÈÉÊËÎÏÔÖÙÛÜŸŒ"), "àâäæçèéêëîïôöùûüÿœ");
    EXPECT_EQ(lowerCase("Âne, Œillet, Érable à sucre, Églantine"), "âne, œillet, érable à sucre, églantine");
}

TEST(LowerCase, FoldsLatin1AndLatinExtendedA) {
    EXPECT_EQ(lowerCase("ÞÐØÅÑ×÷ß"), "þðøåñ×÷ß");
    EXPECT_EQ(lowerCase("ĀĂĄĆĶĸĹŁŇŉŊŌŐŘŠŤŪŲŶŹŻŽſ"), "āăąćķĸĺłňŉŋōőřšťūųŷźżžſ");
    EXPECT_EQ(lowerCase("\u0130\u0131"), "i\u0307\u0131");
}

TEST(LowerCase, LeavesAllElseAsItIs) {
    EXPECT_EQ(lowerCase(""), "");
    EXPECT_EQ(lowerCase("🌫️ 23 · — ’ 日本"), "🌫️ 23 · — ’ 日本");
    EXPECT_EQ(lowerCase("A\xff\xc3"
                        "B\xe2\x82"),
              "a\xff\xc3"
              "b\xe2\x82");
}

} // namespace
} // namespace tambrelle
