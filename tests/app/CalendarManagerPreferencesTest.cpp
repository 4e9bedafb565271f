#include "tests/support/LiveState.h"

#include <vector>

namespace tambrelle {
namespace {

using Write = fakes::FakeUserDefaults::Write;

class CalendarManagerPreferencesTest : public test::LiveState {
protected:
    MenuBarFormat formatFor(const QVariant& stored) {
        platform.defaults.values.insert(PreferenceKeys::menuBarFormat, stored);
        return launch().menuBarFormat();
    }
    AppTheme themeFor(const QVariant& stored) {
        platform.defaults.values.insert(PreferenceKeys::appTheme, stored);
        return launch().theme();
    }
};

TEST_F(CalendarManagerPreferencesTest, MissingValuesGiveTheDefaults) {
    const CalendarManager& manager = launch();
    EXPECT_EQ(manager.menuBarFormat(), MenuBarFormat::dateAndTime);
    EXPECT_EQ(manager.theme(), AppTheme::light);
}

TEST_F(CalendarManagerPreferencesTest, StoredFormatIsRead) {
    EXPECT_EQ(formatFor(QStringLiteral("dateAndTime")), MenuBarFormat::dateAndTime);
    EXPECT_EQ(formatFor(QStringLiteral("date")), MenuBarFormat::date);
    EXPECT_EQ(formatFor(QStringLiteral("decimalTime")), MenuBarFormat::decimalTime);
    EXPECT_EQ(formatFor(QStringLiteral("dayNumber")), MenuBarFormat::dayNumber);
}

TEST_F(CalendarManagerPreferencesTest, UnknownFormatGivesTheDefaultAndIsLeftAlone) {
    for (const QVariant& stored :
         {QVariant(QStringLiteral("Date")), QVariant(QString()), QVariant(QStringLiteral(" date")),
          QVariant(QStringLiteral("date\n")), QVariant(true), QVariant(2LL),
          QVariant(QString(1 << 20, QLatin1Char('d')))}) {
        EXPECT_EQ(formatFor(stored), MenuBarFormat::dateAndTime);
        EXPECT_EQ(platform.defaults.values.value(PreferenceKeys::menuBarFormat), stored);
    }
    EXPECT_TRUE(platform.defaults.writes.empty());
}

TEST_F(CalendarManagerPreferencesTest, OnlySepiaNightGivesSepiaNight) {
    EXPECT_EQ(themeFor(QStringLiteral("sepiaNight")), AppTheme::sepiaNight);
    EXPECT_EQ(themeFor(QStringLiteral("light")), AppTheme::light);
    EXPECT_EQ(themeFor(QStringLiteral("SepiaNight")), AppTheme::light);
    EXPECT_EQ(themeFor(QStringLiteral("dark")), AppTheme::light);
    EXPECT_EQ(themeFor(true), AppTheme::light);
    EXPECT_TRUE(platform.defaults.writes.empty());
}

TEST_F(CalendarManagerPreferencesTest, EveryAssignmentIsAnnouncedAndStoredAnEqualOneToo) {
    launch();
    const test::Announcements announcements(*calendar);
    calendar->setMenuBarFormat(MenuBarFormat::date);
    calendar->setMenuBarFormat(MenuBarFormat::date);
    calendar->setTheme(AppTheme::light);
    calendar->setTheme(AppTheme::sepiaNight);
    EXPECT_EQ(announcements.count, 4);
    const std::vector<Write> expected{{PreferenceKeys::menuBarFormat, QStringLiteral("date")},
                                      {PreferenceKeys::menuBarFormat, QStringLiteral("date")},
                                      {PreferenceKeys::appTheme, QStringLiteral("light")},
                                      {PreferenceKeys::appTheme, QStringLiteral("sepiaNight")}};
    EXPECT_EQ(platform.defaults.writes, expected);
}

TEST_F(CalendarManagerPreferencesTest, EveryFormatIsStoredByItsName) {
    launch();
    for (const MenuBarFormat format : allCases<MenuBarFormat>()) {
        calendar->setMenuBarFormat(format);
        EXPECT_EQ(calendar->menuBarFormat(), format);
        EXPECT_EQ(platform.defaults.values.value(PreferenceKeys::menuBarFormat).toString().toStdString(),
                  rawValue(format));
    }
}

TEST_F(CalendarManagerPreferencesTest, AnnouncesBeforeItAssignsAndStores) {
    launch();
    QObject context;
    int announced = 0;
    QObject::connect(calendar, &ObservableObject::objectWillChange, &context, [&] {
        ++announced;
        EXPECT_EQ(calendar->menuBarFormat(), MenuBarFormat::dateAndTime);
        EXPECT_EQ(calendar->theme(), AppTheme::light);
        EXPECT_TRUE(platform.defaults.writes.empty());
    });
    calendar->setMenuBarFormat(MenuBarFormat::dayNumber);
    EXPECT_EQ(announced, 1);
    context.disconnect();
}

TEST_F(CalendarManagerPreferencesTest, NothingElseIsStored) {
    launch();
    calendar->goToNextDay();
    tickAt(noon + std::chrono::hours(30));
    EXPECT_TRUE(platform.defaults.writes.empty());
    launch();
    EXPECT_EQ(calendar->dayOffset(), 0);
}

TEST_F(CalendarManagerPreferencesTest, LineFollowsTheFormatAtOnce) {
    launch();
    EXPECT_EQ(calendar->menuBarText(), QStringLiteral("🌫️ 23 Brumaire · Tridi · 5:00"));
    calendar->setMenuBarFormat(MenuBarFormat::date);
    EXPECT_EQ(calendar->menuBarText(), QStringLiteral("🌫️ 23 Brum."));
}

} // namespace
} // namespace tambrelle
