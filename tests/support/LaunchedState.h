#pragma once

#include "app/CalendarManager.h"
#include "app/NotificationManager.h"
#include "app/SoundManager.h"
#include "tests/fakes/FakePlatform.h"

namespace tambrelle::test {

/// The live state with its two services on a desktop of fakes, put together as the application does it.
class LaunchedState final {
public:
    /// `platform` outlives it.
    explicit LaunchedState(fakes::FakePlatform& platform)
        : sound({platform.defaults, platform.resources, platform.audioPlayer, platform.systemSound}),
          notifications({platform.clock, platform.defaults, platform.notifications}),
          calendar(
              {platform.clock, platform.timer, platform.random, platform.defaults, sound, notifications}) {}

    SoundManager sound;
    NotificationManager notifications;
    CalendarManager calendar;
};

} // namespace tambrelle::test
