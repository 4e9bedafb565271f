#include "ui/TambrelleApp.h"

#include "ui/panel/MenuBarView.h"
#include "ui/panel/PanelWindow.h"

#include <QCoreApplication>

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
    connect(&platform.statusItem, &StatusItem::quitRequested, qApp, &QCoreApplication::quit,
            Qt::QueuedConnection);
}

TambrelleApp::~TambrelleApp() = default;

PanelWindow& TambrelleApp::panelWindow() {
    if (!panel) {
        auto* view = new MenuBarView({.manager = calendarManager,
                                      .sound = sound,
                                      .clock = platform.clock,
                                      .resources = platform.resources});
        panel = std::make_unique<PanelWindow>(view);
        connect(view, &MenuBarView::quitRequested, qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    }
    return *panel;
}

} // namespace tambrelle
