#include "platform/freedesktop/FreedesktopPlatform.h"

#include "platform/freedesktop/AutostartLoginItem.h"
#include "platform/freedesktop/Display.h"
#include "platform/freedesktop/IniUserDefaults.h"
#include "platform/freedesktop/InstalledResources.h"
#include "platform/freedesktop/PortalContrast.h"
#include "platform/freedesktop/SessionBus.h"
#include "platform/freedesktop/SystemClock.h"
#include "platform/freedesktop/SystemRandomSource.h"
#include "platform/freedesktop/notifications/FreedesktopNotificationService.h"
#include "platform/freedesktop/notifications/PolledWakeUp.h"
#include "platform/freedesktop/notifications/ScheduledNotificationCenter.h"
#include "platform/freedesktop/sound/SpawnedAudioPlayer.h"
#include "platform/freedesktop/sound/ThemedSystemSound.h"
#include "platform/freedesktop/statusitem/FreedesktopStatusItem.h"
#include "platform/freedesktop/timer/ChoreTimer.h"
#include "platform/freedesktop/timer/TickTimer.h"

#include <QCoreApplication>

namespace tambrelle {

struct FreedesktopPlatform::Parts {
    explicit Parts(const SessionBus& bus)
        : notificationService(bus.connection()), statusItem(bus, defaults), contrast(bus) {
        QObject::connect(&bus, &SessionBus::changed, &notificationService,
                         [this, &bus] { notificationService.follow(bus.connection()); });
    }

    SystemClock clock;
    PolledWakeUp wakeUp{clock};
    ChoreTimer timer{makeTickTimer(), [this] { wakeUp.poll(); }};
    SystemRandomSource random;
    IniUserDefaults defaults{IniUserDefaults::standardPath()};
    InstalledResources resources;
    SpawnedAudioPlayer audioPlayer{SpawnedAudioPlayer::standardProgram()};
    ThemedSystemSound systemSound;
    FreedesktopNotificationService notificationService;
    ScheduledNotificationCenter notifications{clock, wakeUp, notificationService};
    AutostartLoginItem loginItem{AutostartLoginItem::standardFolder(),
                                 QCoreApplication::applicationFilePath()};
    FreedesktopStatusItem statusItem;
    PortalContrast contrast;
};

FreedesktopPlatform::FreedesktopPlatform(const SessionBus& bus) : parts(std::make_unique<Parts>(bus)) {}

FreedesktopPlatform::~FreedesktopPlatform() = default;

Platform FreedesktopPlatform::ports() {
    return {.clock = parts->clock,
            .timer = parts->timer,
            .random = parts->random,
            .defaults = parts->defaults,
            .resources = parts->resources,
            .audioPlayer = parts->audioPlayer,
            .systemSound = parts->systemSound,
            .notifications = parts->notifications,
            .loginItem = parts->loginItem,
            .statusItem = parts->statusItem,
            .contrast = parts->contrast,
            .popover = popoverKind()};
}

} // namespace tambrelle
