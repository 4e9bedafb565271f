#include "ui/TambrelleApp.h"

#include "ui/ApplicationIcon.h"
#include "ui/TypeScale.h"
#include "ui/panel/MenuBarView.h"
#include "ui/panel/PanelWindow.h"
#include "ui/settings/SettingsView.h"

#include <QCoreApplication>
#include <QCursor>
#include <QGuiApplication>

namespace tambrelle {

TambrelleApp::TambrelleApp(const Platform& platform)
    : platform(platform),
      sound({platform.defaults, platform.resources, platform.audioPlayer, platform.systemSound}),
      notifications({platform.clock, platform.defaults, platform.notifications}),
      calendarManager(
          {platform.clock, platform.timer, platform.random, platform.defaults, sound, notifications}),
      label(calendarManager, platform.statusItem) {
    connect(&platform.statusItem, &StatusItem::activated, this,
            [this](QPoint position) { panelWindow().toggle(position); });
    connect(&platform.statusItem, &StatusItem::preferencesRequested, this, &TambrelleApp::openSettings);
    connect(&platform.statusItem, &StatusItem::quitRequested, qApp, &QCoreApplication::quit,
            Qt::QueuedConnection);
}

TambrelleApp::~TambrelleApp() {
    delete settings;
}

PanelWindow& TambrelleApp::panelWindow() {
    const TextSettings text{.font = QGuiApplication::font(), .scale = textScale()};
    if (panel && !panel->isVisible() && text != panelText)
        panel.reset();
    if (!panel) {
        panelText = text;
        auto* view = new MenuBarView({.manager = calendarManager,
                                      .sound = sound,
                                      .clock = platform.clock,
                                      .resources = platform.resources,
                                      .contrast = platform.contrast});
        panel = std::make_unique<PanelWindow>(view, platform.popover);
        connect(view, &MenuBarView::settingsRequested, this, &TambrelleApp::openSettings);
        connect(view, &MenuBarView::quitRequested, qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    }
    return *panel;
}

void TambrelleApp::showPanel() {
    panelWindow().present(QCursor::pos());
}

void TambrelleApp::openSettings() {
    if (panel)
        panel->close();
    if (!settings) {
        settings = new SettingsView({.manager = calendarManager,
                                     .notifications = notifications,
                                     .sound = sound,
                                     .loginItem = platform.loginItem,
                                     .clock = platform.clock});
        settings->setWindowIcon(applicationIcon());
        // Nothing of it stays in memory, and the next window reads the login item anew.
        settings->setAttribute(Qt::WA_DeleteOnClose);
    }
    settings->present();
}

} // namespace tambrelle
