#include "core/MenuBarFormat.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tambrelle {
namespace {

TEST(RawValue, ListsTheMenuBarFormatsInTheOrderOfDeclaration) {
    EXPECT_THAT(allCases<MenuBarFormat>(),
                testing::ElementsAre(MenuBarFormat::dateAndTime, MenuBarFormat::date,
                                     MenuBarFormat::decimalTime, MenuBarFormat::dayNumber));
}

TEST(RawValue, IsTheCaseName) {
    EXPECT_EQ(rawValue(MenuBarFormat::dateAndTime), "dateAndTime");
    EXPECT_EQ(rawValue(MenuBarFormat::date), "date");
    EXPECT_EQ(rawValue(MenuBarFormat::decimalTime), "decimalTime");
    EXPECT_EQ(rawValue(MenuBarFormat::dayNumber), "dayNumber");
}

TEST(RawValue, LeadsBackToItsCase) {
    for (const MenuBarFormat format : allCases<MenuBarFormat>())
        EXPECT_EQ(fromRawValue<MenuBarFormat>(rawValue(format)), format);
}

TEST(RawValue, IsComparedExactly) {
    using namespace std::string_view_literals;
    for (const auto text :
         {""sv, "Date"sv, "DATE"sv, "date "sv, " date"sv, "dat"sv, "dates"sv, "date\0"sv, "0"sv})
        EXPECT_FALSE(fromRawValue<MenuBarFormat>(text).has_value()) << text;
}

TEST(RawValueDeathTest, StopsOnAValueThatIsNoCase) {
    EXPECT_DEATH(rawValue(static_cast<MenuBarFormat>(4)), "outside its enumeration");
}

} // namespace
} // namespace tambrelle
