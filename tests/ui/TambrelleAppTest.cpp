#include "ui/TambrelleApp.h"

#include "tests/fakes/FakePlatform.h"
#include "tests/support/EventLoop.h"
#include "tests/support/LocalInstant.h"
#include "tests/support/Printers.h"
#include "tests/support/ScopedTimeZone.h"
#include "ui/SymbolButton.h"
#include "ui/panel/PanelWindow.h"
#include "ui/settings/SettingsView.h"

#include <QApplication>
#include <QComboBox>
#include <QPointer>
#include <QTest>
#include <QTimer>

#include <functional>
#include <gtest/gtest.h>
#include <optional>

namespace tambrelle {
namespace {

class TambrelleAppTest : public ::testing::Test {
protected:
    TambrelleAppTest() {
        platform.clock.set(test::local({2025, 11, 15, 12, 0, 0}));
        app.emplace(platform.ports());
    }

    template <class Window>
    [[nodiscard]] static QList<Window*> windows() {
        QList<Window*> found;
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (auto* window = qobject_cast<Window*>(widget))
                found.append(window);
        }
        return found;
    }
    void clickItem() {
        platform.statusItem.click({400, 5});
        test::runQueued();
    }
    void press(const QString& name) {
        for (SymbolButton* button : windows<PanelWindow>().constFirst()->findChildren<SymbolButton*>()) {
            if (button->accessibleName() == name)
                button->click();
        }
        test::runQueued();
    }
    /// Runs the event loop, and in it `ending`, which is to end the application.
    static void expectTheEndAfter(const std::function<void()>& ending) {
        bool ended = false;
        QObject context;
        QObject::connect(qApp, &QCoreApplication::aboutToQuit, &context, [&ended] { ended = true; });
        QMetaObject::invokeMethod(&context, ending, Qt::QueuedConnection);
        QTimer limit;
        QObject::connect(&limit, &QTimer::timeout, &context, [] { QCoreApplication::exit(1); });
        limit.start(std::chrono::seconds(10));
        EXPECT_EQ(QApplication::exec(), 0);
        EXPECT_TRUE(ended);
    }

    test::ScopedTimeZone zone{"Europe/Paris"};
    fakes::FakePlatform platform;
    std::optional<TambrelleApp> app;
};

TEST_F(TambrelleAppTest, MakesThePanelAtTheFirstClickAndKeepsIt) {
    EXPECT_TRUE(windows<PanelWindow>().isEmpty());
    clickItem();
    ASSERT_EQ(windows<PanelWindow>().size(), 1);
    PanelWindow* first = windows<PanelWindow>().constFirst();
    EXPECT_TRUE(first->isVisible());
    clickItem();
    EXPECT_FALSE(first->isVisible());
    clickItem();
    EXPECT_EQ(windows<PanelWindow>(), QList<PanelWindow*>{first});
}

TEST_F(TambrelleAppTest, MakesThePanelAnewForAnotherFont) {
    clickItem();
    const QPointer<PanelWindow> first = windows<PanelWindow>().constFirst();
    const QFont before = QApplication::font();
    QFont larger = before;
    larger.setPointSizeF(before.pointSizeF() * 2);
    QApplication::setFont(larger);
    clickItem();
    ASSERT_EQ(windows<PanelWindow>().size(), 1);
    EXPECT_EQ(windows<PanelWindow>().constFirst(), first.data()) << "it has been open, and is only closed";
    EXPECT_FALSE(windows<PanelWindow>().constFirst()->isVisible());
    clickItem();
    EXPECT_FALSE(first);
    ASSERT_EQ(windows<PanelWindow>().size(), 1);
    EXPECT_TRUE(windows<PanelWindow>().constFirst()->isVisible());
    QApplication::setFont(before);
}

TEST_F(TambrelleAppTest, OpensTheSettingsFromThePanelAndClosesThePanel) {
    clickItem();
    press("Preferences");
    ASSERT_EQ(windows<SettingsView>().size(), 1);
    EXPECT_TRUE(windows<SettingsView>().constFirst()->isVisible());
    EXPECT_FALSE(windows<SettingsView>().constFirst()->windowIcon().isNull());
    EXPECT_FALSE(windows<PanelWindow>().constFirst()->isVisible());
}

TEST_F(TambrelleAppTest, ASecondRequestRaisesTheOpenSettings) {
    platform.statusItem.choosePreferences();
    ASSERT_EQ(windows<SettingsView>().size(), 1);
    SettingsView* open = windows<SettingsView>().constFirst();
    platform.statusItem.choosePreferences();
    clickItem();
    press("Preferences");
    EXPECT_EQ(windows<SettingsView>(), QList<SettingsView*>{open});
    EXPECT_TRUE(open->isVisible());
}

TEST_F(TambrelleAppTest, SettingsThatAreClosedAreGone) {
    platform.statusItem.choosePreferences();
    windows<SettingsView>().constFirst()->close();
    EXPECT_TRUE(test::waitUntil([] { return windows<SettingsView>().isEmpty(); }));
    platform.loginItem.enabled = true;
    platform.statusItem.choosePreferences();
    ASSERT_EQ(windows<SettingsView>().size(), 1);
}

TEST_F(TambrelleAppTest, AFormatChosenInTheSettingsChangesTheLabelAtOnce) {
    platform.statusItem.choosePreferences();
    for (QComboBox* picker : windows<SettingsView>().constFirst()->findChildren<QComboBox*>()) {
        if (picker->accessibleName() == "Show")
            picker->setCurrentIndex(3);
    }
    test::runQueued();
    EXPECT_EQ(platform.statusItem.presented.back().line, "🌫️ 23");
}

TEST_F(TambrelleAppTest, QuitsFromThePanel) {
    clickItem();
    expectTheEndAfter([this] { press("Quit"); });
}

TEST_F(TambrelleAppTest, QuitsFromTheItem) {
    expectTheEndAfter([this] { platform.statusItem.chooseQuit(); });
}

} // namespace
} // namespace tambrelle
