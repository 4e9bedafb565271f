#pragma once

#include "app/CalendarManager.h"
#include "app/NotificationManager.h"
#include "app/SoundManager.h"
#include "platform/freedesktop/IniUserDefaults.h"
#include "platform/freedesktop/notifications/ScheduledNotificationCenter.h"
#include "tests/fakes/FakeAudioPlayer.h"
#include "tests/fakes/FakeClock.h"
#include "tests/fakes/FakeRepeatingTimer.h"
#include "tests/fakes/FakeResourceBundle.h"
#include "tests/fakes/FakeStatusItem.h"
#include "tests/fakes/FakeSystemSound.h"
#include "tests/platform/FakeNotificationService.h"
#include "tests/platform/FakeWakeUp.h"
#include "tests/soak/Chance.h"
#include "ui/MenuBarLabel.h"

#include <QTemporaryDir>

#include <optional>

namespace tambrelle::soak {

/// What outlives the program: the desktop with its clock and its services, and the preference file.
struct Surroundings {
    explicit Surroundings(Chance& chance) : chance(chance) {
        resources.add(QStringLiteral("marseillaise.mp3"));
    }

    [[nodiscard]] QString preferenceFile() const { return folder.filePath(QStringLiteral("tambrelle.conf")); }

    Chance& chance;
    fakes::FakeClock clock;
    fakes::FakeRepeatingTimer timer;
    fakes::FakeResourceBundle resources;
    fakes::FakeAudioPlayer audioPlayer;
    fakes::FakeSystemSound systemSound;
    fakes::FakeStatusItem statusItem;
    fakes::FakeWakeUp wakeUp;
    fakes::FakeNotificationService notificationService;
    QTemporaryDir folder;
};

/// The program: its real objects, as its entry puts them together, from one start to one end.
struct Household {
    explicit Household(Surroundings& around)
        : defaults(around.preferenceFile()),
          center(around.clock, around.wakeUp, around.notificationService),
          sound({defaults, around.resources, around.audioPlayer, around.systemSound}),
          notifications({around.clock, defaults, center}),
          calendar({around.clock, around.timer, around.chance, defaults, sound, notifications}),
          label(calendar, around.statusItem) {}

    IniUserDefaults defaults;
    ScheduledNotificationCenter center;
    SoundManager sound;
    NotificationManager notifications;
    CalendarManager calendar;
    MenuBarLabel label;
};

} // namespace tambrelle::soak
