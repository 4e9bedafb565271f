#pragma once

#include "core/RandomSource.h"
#include "platform/AudioPlayer.h"
#include "platform/Clock.h"
#include "platform/ContrastPreference.h"
#include "platform/LoginItem.h"
#include "platform/PopoverKind.h"
#include "platform/RepeatingTimer.h"
#include "platform/ResourceBundle.h"
#include "platform/StatusItem.h"
#include "platform/SystemSound.h"
#include "platform/UserDefaults.h"
#include "platform/UserNotificationCenter.h"

namespace tambrelle {

/// All that the application asks of a desktop, filled in one place at the start and handed down.
struct Platform {
    const Clock& clock;
    RepeatingTimer& timer;
    RandomSource& random;
    UserDefaults& defaults;
    const ResourceBundle& resources;
    AudioPlayer& audioPlayer;
    SystemSound& systemSound;
    UserNotificationCenter& notifications;
    LoginItem& loginItem;
    StatusItem& statusItem;
    const ContrastPreference& contrast;
    PopoverKind popover = PopoverKind::grabbing;
};

} // namespace tambrelle
