#include "ui/MenuBarLabel.h"

#include "tests/support/LiveState.h"

#include <chrono>

namespace tambrelle {
namespace {

using namespace std::chrono;

class MenuBarLabelTest : public test::LiveState {
protected:
    MenuBarLabelTest() : label(launch(), platform.statusItem) {}

    [[nodiscard]] const std::vector<StatusItemContent>& presented() const {
        return platform.statusItem.presented;
    }
    [[nodiscard]] QString line() const { return presented().back().line; }

    MenuBarLabel label;
};

TEST_F(MenuBarLabelTest, ShowsTheLineAtOnce) {
    ASSERT_EQ(presented().size(), 1U);
    EXPECT_EQ(presented()[0],
              (StatusItemContent{.line = QStringLiteral("🌫️ 23 Brumaire · Tridi · 5:00"), .day = 23}));
}

TEST_F(MenuBarLabelTest, TellsTheBarOnlyWhenTheLineChanges) {
    // A decimal minute lasts 86.4 s; the seconds are not shown.
    for (auto passed = 864ms; passed < 86s; passed += 864ms)
        tickAt(noon + passed);
    EXPECT_EQ(presented().size(), 1U);
    tickAt(noon + 87s);
    EXPECT_EQ(presented().size(), 2U);
    EXPECT_EQ(line(), QStringLiteral("🌫️ 23 Brumaire · Tridi · 5:01"));
    calendar->goToNextDay();
    test::runQueued();
    EXPECT_EQ(presented().size(), 2U) << "the line is always today's";
}

TEST_F(MenuBarLabelTest, FollowsTheFormat) {
    calendar->setMenuBarFormat(MenuBarFormat::date);
    test::runQueued();
    EXPECT_EQ(line(), QStringLiteral("🌫️ 23 Brum."));
    calendar->setMenuBarFormat(MenuBarFormat::decimalTime);
    test::runQueued();
    EXPECT_EQ(line(), QStringLiteral("🌫️ 5:00"));
    calendar->setMenuBarFormat(MenuBarFormat::dayNumber);
    test::runQueued();
    EXPECT_EQ(line(), QStringLiteral("🌫️ 23"));
    EXPECT_EQ(presented().size(), 4U);
}

TEST_F(MenuBarLabelTest, FormatWithoutTimeStaysForTheDay) {
    calendar->setMenuBarFormat(MenuBarFormat::date);
    test::runQueued();
    const StatusItemContent before = presented().back();
    tickAt(noon + 5h);
    EXPECT_EQ(presented().back(), before);
    tickAt(noon + 12h);
    EXPECT_EQ(line(), QStringLiteral("🌫️ 24 Brum."));
    EXPECT_EQ(presented().back().day, 24);
}

TEST_F(MenuBarLabelTest, SeveralChangesInATurnAreOne) {
    calendar->setMenuBarFormat(MenuBarFormat::date);
    calendar->setMenuBarFormat(MenuBarFormat::dayNumber);
    calendar->setMenuBarFormat(MenuBarFormat::decimalTime);
    test::runQueued();
    EXPECT_EQ(presented().size(), 2U);
}

TEST_F(MenuBarLabelTest, FollowsAJumpOfTheClockAtTheNextTick) {
    tickAt(test::local({2026, 1, 1, 0, 0, 0}));
    EXPECT_EQ(line(), QStringLiteral("☃️ 10 Nivôse · Décadi · 0:00"));
}

} // namespace
} // namespace tambrelle
