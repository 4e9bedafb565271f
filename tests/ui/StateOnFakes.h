#pragma once

#include "tests/fakes/FakePlatform.h"
#include "tests/support/LaunchedState.h"
#include "tests/support/LocalInstant.h"
#include "ui/panel/MenuBarView.h"
#include "ui/settings/SettingsView.h"

namespace tambrelle::test {

/// A launched state on a desktop of fakes, and what the windows ask for of it.
class StateOnFakes final {
public:
    explicit StateOnFakes(const CivilComponents& now) : start{platform, local(now)} {}

    /// The services of a panel whose delayed actions wait in `delayed`.
    [[nodiscard]] PanelServices panelServices() {
        return {.manager = manager,
                .sound = sound,
                .clock = platform.clock,
                .resources = platform.resources,
                .contrast = platform.contrast,
                .later = [this](std::chrono::milliseconds delay, std::function<void()> action) {
                    delayed.push_back({delay, std::move(action)});
                }};
    }

    [[nodiscard]] SettingsServices settingsServices() {
        return {.manager = manager,
                .notifications = notifications,
                .sound = sound,
                .loginItem = platform.loginItem,
                .clock = platform.clock};
    }

    struct Delayed {
        std::chrono::milliseconds delay;
        std::function<void()> action;
    };

    fakes::FakePlatform platform;

private:
    /// The clock is set before anything below reads it.
    struct Start {
        Start(fakes::FakePlatform& platform, Instant now) { platform.clock.set(now); }
    } start;
    LaunchedState launched{platform};

public:
    SoundManager& sound = launched.sound;
    NotificationManager& notifications = launched.notifications;
    CalendarManager& manager = launched.calendar;
    std::vector<Delayed> delayed;
};

} // namespace tambrelle::test
