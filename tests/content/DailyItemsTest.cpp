#include "content/DailyItems.h"
#include "core/GraphemePrefix.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <concepts>
#include <limits>
#include <set>
#include <string>

namespace tambrelle {
namespace {

using Category = DailyItem::Category;

static_assert(!std::equality_comparable<DailyItem>);

constexpr auto greatest = std::numeric_limits<std::int64_t>::max();
constexpr auto least = std::numeric_limits<std::int64_t>::min();

std::optional<DailyItem> itemOf(std::int64_t month, std::int64_t day) {
    return DailyItems::item({234, month, day, (day - 1) % 10 + 1});
}

std::string imageNameOf(std::int64_t month, std::int64_t day) {
    return itemOf(month, day).value().imageName();
}

TEST(DailyItems, BeginWithTheGrape) {
    const auto item = itemOf(1, 1);
    ASSERT_TRUE(item.has_value());
    EXPECT_EQ(item->frenchName, "Raisin");
    EXPECT_EQ(item->name, "Grape");
    EXPECT_EQ(item->category, Category::plant);
    EXPECT_EQ(item->emoji, "🍇");
    EXPECT_EQ(item->dayOfYear, 1);
    EXPECT_EQ(item->imageName(), "day_001_raisin");
}

TEST(DailyItems, EndWithThePackBasket) {
    const auto item = itemOf(12, 30);
    ASSERT_TRUE(item.has_value());
    EXPECT_EQ(item->frenchName, "Panier");
    EXPECT_EQ(item->name, "Pack basket");
    EXPECT_EQ(item->category, Category::tool);
    EXPECT_EQ(item->dayOfYear, 360);
    EXPECT_EQ(item->imageName(), "day_360_panier");
}

TEST(DailyItems, AreNotThereOnTheComplementaryDays) {
    for (std::int64_t day = 0; day <= 7; ++day)
        EXPECT_FALSE(itemOf(13, day).has_value()) << day;
    EXPECT_FALSE(itemOf(13, -359).has_value());
    EXPECT_FALSE(itemOf(greatest, 1).has_value());
}

TEST(DailyItems, AreNotThereBeyondTheYear) {
    EXPECT_FALSE(itemOf(12, 31).has_value());
    EXPECT_FALSE(itemOf(1, 0).has_value());
    EXPECT_FALSE(itemOf(1, -1).has_value());
    EXPECT_FALSE(itemOf(0, 30).has_value());
    EXPECT_FALSE(itemOf(1, 361).has_value());
    EXPECT_FALSE(itemOf(1, greatest).has_value());
}

TEST(DailyItems, CheckOnlyTheDayOfTheYear) {
    EXPECT_EQ(itemOf(0, 31)->dayOfYear, 1);
    EXPECT_EQ(itemOf(1, 360)->dayOfYear, 360);
    EXPECT_EQ(itemOf(-1, 61)->dayOfYear, 1);
}

TEST(DailyItems, IgnoreYearAndDayOfTheDecade) {
    EXPECT_EQ(DailyItems::item({-7, 2, 23, 99})->frenchName, "Garance");
    EXPECT_EQ(DailyItems::item({4000, 2, 23, 3})->frenchName, "Garance");
}

TEST(DailyItems, NumberTheDayOnlyInTheCopy) {
    std::int64_t row = 0;
    for (std::int64_t month = 1; month <= 12; ++month) {
        for (std::int64_t day = 1; day <= 30; ++day, ++row) {
            const auto item = itemOf(month, day);
            ASSERT_TRUE(item.has_value());
            const DailyItem& stored = DailyItems::all.at(static_cast<std::size_t>(row));
            EXPECT_EQ(item->dayOfYear, (month - 1) * 30 + day);
            EXPECT_EQ(stored.dayOfYear, 0);
            EXPECT_EQ(item->frenchName, stored.frenchName);
            EXPECT_EQ(item->name, stored.name);
            EXPECT_EQ(item->category, stored.category);
            EXPECT_EQ(item->emoji, stored.emoji);
        }
    }
    auto copy = itemOf(1, 1);
    copy->dayOfYear = 99;
    EXPECT_EQ(itemOf(1, 1)->dayOfYear, 1);
    EXPECT_EQ(DailyItems::all[0].imageName(), "day_000_raisin");
}

TEST(DailyItems, FollowTheRuleOfCategoriesWithFourExceptions) {
    std::array<int, 4> totals{};
    int exceptions = 0;
    for (std::int64_t month = 1; month <= 12; ++month) {
        for (std::int64_t day = 1; day <= 30; ++day) {
            Category expected = month == 4 ? Category::mineral : Category::plant;
            if (day % 10 == 5)
                expected = Category::animal;
            if (day % 10 == 0)
                expected = Category::tool;
            const Category category = itemOf(month, day)->category;
            exceptions += category == expected ? 0 : 1;
            ++totals.at(static_cast<std::size_t>(category));
        }
    }
    EXPECT_EQ(exceptions, 4);
    EXPECT_THAT(totals, testing::ElementsAre(262, 38, 36, 24));
    EXPECT_EQ(itemOf(3, 8)->category, Category::animal);
    EXPECT_EQ(itemOf(3, 11)->category, Category::animal);
    EXPECT_EQ(itemOf(5, 29)->category, Category::tool);
    EXPECT_EQ(itemOf(5, 30)->category, Category::plant);
}

TEST(DailyItems, HoldTheirNamesAsTheyStand) {
    EXPECT_EQ(itemOf(4, 3)->name, "Bitite");
    EXPECT_EQ(itemOf(4, 16)->name, "Flite");
    EXPECT_EQ(itemOf(1, 16)->name, "Belle of night");
    EXPECT_EQ(itemOf(5, 3)->name, "Butcher's broom");
    EXPECT_EQ(itemOf(7, 18)->frenchName, "Cigu\u00EB");
    EXPECT_EQ(itemOf(1, 25)->frenchName, "B\u0153uf");
    EXPECT_EQ(itemOf(12, 28)->frenchName, "Ma\u00EFs");
    EXPECT_EQ(itemOf(1, 12)->name, itemOf(1, 12)->frenchName);
    EXPECT_EQ(itemOf(1, 10)->emoji, "\U0001F6E2\uFE0F");
    EXPECT_EQ(itemOf(9, 3)->emoji, "\u2618\uFE0F");
    EXPECT_EQ(itemOf(4, 2)->emoji, "\u2B1B");
}

TEST(DailyItems, HaveOneEmojiEach) {
    for (const DailyItem& item : DailyItems::all) {
        EXPECT_FALSE(item.emoji.empty());
        EXPECT_EQ(graphemePrefix(item.emoji, 1), item.emoji) << item.frenchName;
        EXPECT_FALSE(item.name.empty());
        EXPECT_FALSE(item.frenchName.empty());
    }
}

TEST(ImageName, FoldsTheNamesOfTheTable) {
    EXPECT_EQ(imageNameOf(1, 3), "day_003_chataigne");
    EXPECT_EQ(imageNameOf(1, 25), "day_025_boeuf");
    EXPECT_EQ(imageNameOf(1, 11), "day_011_pomme_de_terre");
    EXPECT_EQ(imageNameOf(8, 18), "day_228_corbeille_dor");
    EXPECT_EQ(imageNameOf(3, 7), "day_067_chou-fleur");
    EXPECT_EQ(imageNameOf(1, 15), "day_015_ane");
    EXPECT_EQ(imageNameOf(9, 16), "day_256_oeillet");
    EXPECT_EQ(imageNameOf(3, 21), "day_081_erable_a_sucre");
    EXPECT_EQ(imageNameOf(7, 18), "day_198_cigue");
    EXPECT_EQ(imageNameOf(8, 13), "day_223_baton-dor");
    EXPECT_EQ(imageNameOf(12, 28), "day_358_mais");
}

TEST(ImageName, HoldsOnlySmallLettersDigitsUnderscoresAndHyphens) {
    std::set<std::string> names;
    for (std::int64_t day = 1; day <= 360; ++day) {
        const std::string name = itemOf(1, day)->imageName();
        EXPECT_THAT(name, testing::MatchesRegex("day_[0-9][0-9][0-9]_[a-z_-]+"));
        names.insert(name);
    }
    EXPECT_EQ(names.size(), 360u);
}

TEST(ImageName, FoldsNoOtherLetter) {
    const DailyItem item{"", "ÀÂÉÈÊËÎÏÔÛÙÇŒ ' '' — Ñü", Category::plant, "", 7};
    EXPECT_EQ(item.imageName(), "day_007_aaeeeeiiouucoe___—_ñü");
    const DailyItem large{"", "X", Category::plant, "", 12345};
    EXPECT_EQ(large.imageName(), "day_12345_x");
}

TEST(Category, PersistsByItsRawValue) {
    EXPECT_THAT(allCases<Category>(),
                testing::ElementsAre(Category::plant, Category::animal, Category::tool, Category::mineral));
    EXPECT_EQ(rawValue(Category::plant), "Plant");
    EXPECT_EQ(rawValue(Category::animal), "Animal");
    EXPECT_EQ(rawValue(Category::tool), "Tool");
    EXPECT_EQ(rawValue(Category::mineral), "Mineral");
    EXPECT_EQ(fromRawValue<Category>("Plant"), Category::plant);
    EXPECT_EQ(fromRawValue<Category>("Mineral"), Category::mineral);
    EXPECT_FALSE(fromRawValue<Category>("plant").has_value());
    EXPECT_FALSE(fromRawValue<Category>("PLANT").has_value());
    EXPECT_FALSE(fromRawValue<Category>("").has_value());
    EXPECT_EQ(static_cast<int>(Category::plant), 0);
    EXPECT_EQ(static_cast<int>(Category::mineral), 3);
}

TEST(DailyItemsDeathTest, StopOnOverflow) {
    EXPECT_DEATH(itemOf(least, 1), "overflow");
    EXPECT_DEATH(itemOf(least / 2, 1), "overflow");
    EXPECT_DEATH(itemOf(12, greatest), "overflow");
}

} // namespace
} // namespace tambrelle
