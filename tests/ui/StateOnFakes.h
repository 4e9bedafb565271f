#pragma once

#include "app/CalendarManager.h"
#include "app/NotificationManager.h"
#include "app/SoundManager.h"
#include "tests/app/LocalInstant.h"
#include "tests/fakes/FakePlatform.h"
#include "ui/panel/MenuBarView.h"
#include "ui/settings/SettingsView.h"

namespace tambrelle::test {

/// The live state with its services, on a desktop of fakes.
class StateOnFakes final {
public:
    explicit StateOnFakes(const CivilComponents& now) : start{platform, local(now)} {}

    /// The services of a panel whose delayed actions wait in `delayed`.
    [[nodiscard]] PanelServices panelServices() {
        return {.manager = manager,
                .sound = sound,
                .clock = platform.clock,
                .resources = platform.resources,
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

public:
    SoundManager sound{{platform.defaults, platform.resources, platform.audioPlayer, platform.systemSound}};
    NotificationManager notifications{{platform.clock, platform.defaults, platform.notifications}};
    CalendarManager manager{
        {platform.clock, platform.timer, platform.random, platform.defaults, sound, notifications}};
    std::vector<Delayed> delayed;
};

} // namespace tambrelle::test
