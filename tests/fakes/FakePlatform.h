#pragma once

#include "platform/Platform.h"
#include "tests/fakes/FakeAudioPlayer.h"
#include "tests/fakes/FakeClock.h"
#include "tests/fakes/FakeContrastPreference.h"
#include "tests/fakes/FakeLoginItem.h"
#include "tests/fakes/FakeRandomSource.h"
#include "tests/fakes/FakeRepeatingTimer.h"
#include "tests/fakes/FakeResourceBundle.h"
#include "tests/fakes/FakeStatusItem.h"
#include "tests/fakes/FakeSystemSound.h"
#include "tests/fakes/FakeUserDefaults.h"
#include "tests/fakes/FakeUserNotificationCenter.h"

namespace tambrelle::fakes {

/// A whole desktop of fakes.
struct FakePlatform {
    FakeClock clock;
    FakeRepeatingTimer timer;
    FakeRandomSource random;
    FakeUserDefaults defaults;
    FakeResourceBundle resources;
    FakeAudioPlayer audioPlayer;
    FakeSystemSound systemSound;
    FakeUserNotificationCenter notifications{clock};
    FakeLoginItem loginItem;
    FakeStatusItem statusItem;
    FakeContrastPreference contrast;

    [[nodiscard]] Platform ports() {
        return {.clock = clock,
                .timer = timer,
                .random = random,
                .defaults = defaults,
                .resources = resources,
                .audioPlayer = audioPlayer,
                .systemSound = systemSound,
                .notifications = notifications,
                .loginItem = loginItem,
                .statusItem = statusItem,
                .contrast = contrast};
    }

    /// Sets the clock and lets the notification centre see it.
    void setTime(Instant instant) {
        clock.set(instant);
        notifications.deliverDue();
    }
};

} // namespace tambrelle::fakes
