#include "ui/settings/SettingsView.h"

#include "app/PreferenceKeys.h"
#include "tests/support/EventLoop.h"
#include "tests/support/Printers.h"
#include "tests/support/ScopedTimeZone.h"
#include "tests/ui/StateOnFakes.h"
#include "ui/settings/FormSection.h"
#include "ui/settings/ReminderTime.h"
#include "ui/settings/ToggleRow.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTimeEdit>

#include <gtest/gtest.h>
#include <memory>

namespace tambrelle {
namespace {

class SettingsViewTest : public ::testing::Test {
protected:
    SettingsViewTest() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }
    ~SettingsViewTest() override { QLocale::setDefault(QLocale::c()); }

    void open() {
        view = std::make_unique<SettingsView>(state.settingsServices());
        view->present();
        test::runQueued();
    }
    [[nodiscard]] ToggleRow* toggle(const QString& text) const {
        for (ToggleRow* row : view->findChildren<ToggleRow*>()) {
            if (row->text() == text)
                return row;
        }
        return nullptr;
    }
    [[nodiscard]] QComboBox* picker(const QString& label) const {
        for (QComboBox* box : view->findChildren<QComboBox*>()) {
            if (box->accessibleName() == label)
                return box;
        }
        return nullptr;
    }
    [[nodiscard]] QTimeEdit* time() const { return view->findChild<QTimeEdit*>(); }
    void click(const QString& text) {
        ToggleRow* row = toggle(text);
        ASSERT_NE(row, nullptr) << text.toStdString();
        QTest::mouseClick(row, Qt::LeftButton);
        test::runQueued();
    }
    [[nodiscard]] QStringList options(const QString& label) const {
        QStringList options;
        for (int i = 0; i < picker(label)->count(); ++i)
            options.append(picker(label)->itemText(i));
        return options;
    }
    [[nodiscard]] QVariant stored(const QString& key) const {
        return state.platform.defaults.values.value(key);
    }

    test::ScopedTimeZone zone{"Europe/Paris"};
    test::StateOnFakes state{{2025, 11, 15, 12, 0, 0}};
    std::unique_ptr<SettingsView> view;
};

TEST_F(SettingsViewTest, HasItsSectionsAndLabels) {
    open();
    EXPECT_EQ(view->windowTitle(), "Tambrelle");
    QStringList labels;
    for (const QLabel* label : view->findChildren<QLabel*>()) {
        if (label->isVisible())
            labels.append(label->text());
    }
    labels.sort();
    EXPECT_EQ(labels, (QStringList{"Appearance", "Daily reminder", "General", "Menu bar", "Show", "Sound",
                                   "Theme", "Time"}));
    int lastTop = -1;
    QStringList titles;
    for (const FormSection* section : view->findChildren<FormSection*>()) {
        EXPECT_GT(section->y(), lastTop);
        EXPECT_EQ(section->width(), 360);
        lastTop = section->y();
        titles.append(section->findChild<QLabel*>()->text());
    }
    EXPECT_EQ(titles, (QStringList{"General", "Appearance", "Menu bar", "Daily reminder", "Sound"}));
    for (const char* text : {"Launch at login", "Notify me each morning", "Hourly chimes (La Marseillaise)"})
        EXPECT_NE(toggle(text), nullptr) << text;
    EXPECT_EQ(options("Theme"), (QStringList{"Light parchment", "Sepia night"}));
    EXPECT_EQ(options("Show"),
              (QStringList{"Date & decimal time", "Date only", "Decimal time only", "Day number only"}));
    EXPECT_EQ(time()->accessibleName(), "Time");
}

TEST_F(SettingsViewTest, ChoosingAThemeStoresIt) {
    open();
    picker("Theme")->setCurrentIndex(1);
    EXPECT_EQ(stored(PreferenceKeys::appTheme), "sepiaNight");
    EXPECT_EQ(state.manager.theme(), AppTheme::sepiaNight);
}

TEST_F(SettingsViewTest, ChoosingAFormatStoresIt) {
    open();
    const QStringList expected{"dateAndTime", "date", "decimalTime", "dayNumber"};
    for (int i = 3; i >= 0; --i) {
        picker("Show")->setCurrentIndex(i);
        EXPECT_EQ(stored(PreferenceKeys::menuBarFormat), expected[i]);
    }
}

TEST_F(SettingsViewTest, OpeningWritesNothing) {
    state.platform.defaults.writes.clear();
    open();
    EXPECT_TRUE(state.platform.defaults.writes.empty());
    EXPECT_EQ(state.platform.loginItem.requests, 0);
}

TEST_F(SettingsViewTest, ShowsAtOnceWhatAnotherPartChanges) {
    open();
    state.manager.setTheme(AppTheme::sepiaNight);
    state.manager.setMenuBarFormat(MenuBarFormat::dayNumber);
    state.sound.setSoundEnabled(false);
    state.notifications.setHour(21);
    state.platform.defaults.writes.clear();
    test::runQueued();
    EXPECT_EQ(picker("Theme")->currentText(), "Sepia night");
    EXPECT_EQ(picker("Show")->currentText(), "Day number only");
    EXPECT_FALSE(toggle("Hourly chimes (La Marseillaise)")->isChecked());
    EXPECT_EQ(time()->time(), QTime(21, 0));
    EXPECT_TRUE(state.platform.defaults.writes.empty()) << "showing is not writing";
}

TEST_F(SettingsViewTest, TheTimeComesAndGoesWithItsToggle) {
    open();
    EXPECT_TRUE(time()->isVisible());
    const int withTime = view->height();
    click("Notify me each morning");
    EXPECT_FALSE(state.notifications.enabled());
    EXPECT_FALSE(time()->isVisible());
    EXPECT_TRUE(test::waitUntil([&] { return view->height() < withTime; }))
        << "the window follows its content";
    click("Notify me each morning");
    EXPECT_TRUE(time()->isVisible());
    EXPECT_EQ(stored(PreferenceKeys::notificationsEnabled), true);
}

TEST_F(SettingsViewTest, PickingATimeStoresHourAndMinuteAndReschedules) {
    state.platform.notifications.answer(true);
    open();
    const int before = state.platform.notifications.removals;
    time()->setTime(QTime(7, 30));
    EXPECT_EQ(stored(PreferenceKeys::notificationHour), 7);
    EXPECT_EQ(stored(PreferenceKeys::notificationMinute), 30);
    EXPECT_EQ(state.platform.notifications.removals, before + 2) << "once for each of the two values";
    EXPECT_EQ(state.platform.notifications.pending().size(), 13U) << "today's morning is over";
}

TEST_F(SettingsViewTest, TimesAreTypedKeyByKey) {
    open();
    time()->setFocus();
    time()->setSelectedSection(QDateTimeEdit::HourSection);
    QTest::keyClick(time(), Qt::Key_Up);
    test::runQueued();
    EXPECT_EQ(state.notifications.hour(), 9);
    EXPECT_EQ(state.notifications.minute(), 0);
}

TEST_F(SettingsViewTest, AClickChoosesTheHourOrTheMinuteAndTypingReplacesIt) {
    open();
    toggle("Notify me each morning")->click();
    auto* text = time()->findChild<QLineEdit*>();
    ASSERT_NE(text, nullptr);
    const auto typeAt = [text](int character, const char* digits) {
        text->setCursorPosition(character);
        const QPoint there = text->inputMethodQuery(Qt::ImCursorRectangle).toRectF().center().toPoint();
        QTest::mouseClick(text, Qt::LeftButton, {}, there);
        QTest::keyClicks(text->parentWidget(), digits);
    };
    typeAt(1, "11");
    EXPECT_EQ(state.notifications.hour(), 11);
    typeAt(4, "45");
    EXPECT_EQ(state.notifications.minute(), 45);
    EXPECT_EQ(state.notifications.hour(), 11);
    text->selectAll();
    QTest::keyClicks(time(), "0920");
    EXPECT_EQ(state.notifications.hour(), 9);
    EXPECT_EQ(state.notifications.minute(), 20);
}

TEST_F(SettingsViewTest, ADamagedTimeShowsThePresentOneAndStaysAsItIs) {
    for (const auto& [hour, minute] : {std::pair{-1, 0}, {99, 0}, {8, 60}, {8, -1}, {99, 99}}) {
        state.notifications.setHour(hour);
        state.notifications.setMinute(minute);
        open();
        EXPECT_EQ(time()->time(), QTime(12, 0)) << hour << ":" << minute;
        EXPECT_EQ(state.notifications.hour(), hour);
        EXPECT_EQ(state.notifications.minute(), minute);
    }
    time()->setTime(QTime(6, 45));
    EXPECT_EQ(state.notifications.hour(), 6);
    EXPECT_EQ(state.notifications.minute(), 45);
}

TEST_F(SettingsViewTest, TheTimeIsWrittenAsTheLocaleDoes) {
    open();
    EXPECT_EQ(time()->text(), "8:00 AM");
    QLocale::setDefault(QLocale("de_DE"));
    open();
    EXPECT_EQ(time()->text(), "08:00");
}

TEST_F(SettingsViewTest, LaunchAtLoginRegisters) {
    open();
    EXPECT_FALSE(toggle("Launch at login")->isChecked());
    click("Launch at login");
    EXPECT_TRUE(state.platform.loginItem.enabled);
    EXPECT_TRUE(toggle("Launch at login")->isChecked());
    click("Launch at login");
    EXPECT_FALSE(state.platform.loginItem.enabled);
}

TEST_F(SettingsViewTest, LaunchAtLoginSpringsBackWhenItIsRefused) {
    open();
    state.platform.loginItem.refuses = true;
    click("Launch at login");
    EXPECT_FALSE(toggle("Launch at login")->isChecked());
    EXPECT_EQ(state.platform.loginItem.requests, 1) << "it springs back without asking again";

    state.platform.loginItem.enabled = true;
    open();
    EXPECT_TRUE(toggle("Launch at login")->isChecked()) << "read anew by each window";
    click("Launch at login");
    EXPECT_TRUE(toggle("Launch at login")->isChecked());
}

TEST_F(SettingsViewTest, TheWholeRowTogglesAndSoDoesTheSpaceBar) {
    open();
    ToggleRow* chimes = toggle("Hourly chimes (La Marseillaise)");
    QTest::mouseClick(chimes, Qt::LeftButton, {}, {2, 2});
    EXPECT_FALSE(state.sound.soundEnabled());
    QTest::keyClick(chimes, Qt::Key_Space);
    EXPECT_TRUE(state.sound.soundEnabled());
}

TEST_F(SettingsViewTest, EscapeClosesIt) {
    open();
    QTest::keyClick(view.get(), Qt::Key_Escape);
    EXPECT_FALSE(view->isVisible());
}

TEST_F(SettingsViewTest, HasRoomForEveryWord) {
    open();
    for (const ToggleRow* row : view->findChildren<ToggleRow*>())
        EXPECT_GE(row->width(), row->sizeHint().width()) << row->text().toStdString();
    for (const QLabel* label : view->findChildren<QLabel*>())
        EXPECT_GE(label->width(), label->sizeHint().width()) << label->text().toStdString();
    for (const QComboBox* box : view->findChildren<QComboBox*>())
        EXPECT_GE(box->width(), box->sizeHint().width());
}

TEST(ReminderTimeTest, IsTodayAtTheHourAndMinute) {
    const test::ScopedTimeZone zone("Europe/Paris");
    const Instant now = test::local({2025, 11, 15, 12, 0, 0});
    EXPECT_EQ(reminderTime(now, 7, 30), test::local({2025, 11, 15, 7, 30, 0}));
    EXPECT_EQ(reminderTime(now, 23, 59), test::local({2025, 11, 15, 23, 59, 0}));
}

TEST(ReminderTimeTest, TakesTheNextTimeThatExistsAndTheFirstOfTwo) {
    const test::ScopedTimeZone zone("Europe/Paris");
    EXPECT_EQ(reminderTime(test::local({2025, 3, 30, 12, 0, 0}), 2, 30), test::local({2025, 3, 30, 3, 0, 0}));
    EXPECT_EQ(reminderTime(test::local({2025, 10, 26, 12, 0, 0}), 2, 30),
              test::local({2025, 10, 26, 0, 30, 0}) + std::chrono::hours(2));
}

TEST(ReminderTimeTest, IsNowWhereThereIsNoSuchTime) {
    const test::ScopedTimeZone zone("Europe/Paris");
    const Instant now = test::local({2025, 11, 15, 12, 0, 0});
    for (const std::int64_t wrong : {std::int64_t{-1}, std::int64_t{99}, INT64_MAX, INT64_MIN}) {
        EXPECT_EQ(reminderTime(now, wrong, 0), now);
        EXPECT_EQ(reminderTime(now, 8, wrong), now);
    }
}

} // namespace
} // namespace tambrelle
