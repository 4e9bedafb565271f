#include "ui/CivilTexts.h"
#include "tests/support/LocalInstant.h"
#include "tests/support/Printers.h"
#include "tests/support/ScopedTimeZone.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

namespace tambrelle {
namespace {

class CivilTextsTest : public ::testing::Test {
protected:
    test::ScopedTimeZone zone{"Europe/Paris"};
    const Instant noon = test::local({2025, 11, 15, 12, 7, 30});
};

TEST_F(CivilTextsTest, WritesTheDateInTheLocalesOrder) {
    EXPECT_EQ(civilDateText(noon, QLocale("en_US")), "Nov 15, 2025");
    EXPECT_EQ(civilDateText(noon, QLocale("en_GB")), "15 Nov 2025");
    EXPECT_EQ(civilDateText(noon, QLocale("de_DE")), "15. Nov. 2025");
    EXPECT_EQ(civilDateText(noon, QLocale("fr_FR")), "15 nov. 2025");
    EXPECT_EQ(civilDateText(noon, QLocale("hu_HU")), "2025. nov. 15.");
    EXPECT_EQ(civilDateText(noon, QLocale("ja_JP")), "2025年11月15日");
    EXPECT_EQ(civilDateText(noon, QLocale::c()), "15 Nov 2025");
}

TEST_F(CivilTextsTest, WritesTheTimeWithoutSeconds) {
    EXPECT_EQ(civilTimeText(noon, QLocale("de_DE")), "12:07");
    EXPECT_EQ(civilTimeText(noon, QLocale("en_US")), "12:07 PM");
    EXPECT_EQ(civilTimeText(noon, QLocale::c()), "12:07");
}

TEST_F(CivilTextsTest, FollowsTheZone) {
    const test::ScopedTimeZone tokyo("Asia/Tokyo");
    EXPECT_EQ(civilTimeText(noon, QLocale::c()), "20:07");
    EXPECT_EQ(civilDateText(noon + std::chrono::hours(4), QLocale::c()), "16 Nov 2025");
}

TEST_F(CivilTextsTest, EveryLocaleNamesDayMonthAndYearAndNoWeekday) {
    for (const QLocale& locale :
         QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry)) {
        const QString pattern = mediumDatePattern(locale);
        EXPECT_FALSE(pattern.contains("ddd")) << locale.name().toStdString();
        for (const char part : {'d', 'M', 'y'})
            EXPECT_TRUE(pattern.contains(part))
                << locale.name().toStdString() << " " << pattern.toStdString();
        EXPECT_EQ(pattern, pattern.trimmed());
        static const QRegularExpression straySeparator("^[,،]|[,،]$|, *,");
        EXPECT_FALSE(pattern.contains(straySeparator))
            << locale.name().toStdString() << " " << pattern.toStdString();
        EXPECT_FALSE(timePattern(locale).contains('s')) << locale.name().toStdString();
    }
}

TEST_F(CivilTextsTest, HasWordsForYearsBeforeChrist) {
    EXPECT_EQ(civilDateText(test::local({0, 3, 1, 12, 0, 0}), QLocale("en_GB")), "1 Mar -0001");
}

} // namespace
} // namespace tambrelle
