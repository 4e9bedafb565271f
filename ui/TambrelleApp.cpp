#include "ui/TambrelleApp.h"

#include <QCoreApplication>

namespace tambrelle {

TambrelleApp::TambrelleApp(const Platform& platform)
    : sound({platform.defaults, platform.resources, platform.audioPlayer, platform.systemSound}),
      notifications({platform.clock, platform.defaults, platform.notifications}),
      calendarManager(
          {platform.clock, platform.timer, platform.random, platform.defaults, sound, notifications}),
      label(calendarManager, platform.statusItem) {
    connect(&platform.statusItem, &StatusItem::quitRequested, qApp, &QCoreApplication::quit,
            Qt::QueuedConnection);
}

} // namespace tambrelle
