#pragma once

#include "app/CalendarManager.h"
#include "app/NotificationManager.h"
#include "app/SoundManager.h"
#include "core/GregorianCalendar.h"
#include "tests/fakes/FakePlatform.h"
#include "ui/panel/MenuBarView.h"

namespace tambrelle::test {

/// The instant at which the wall clock shows these components.
inline Instant wallClock(const CivilComponents& components) {
    return GregorianCalendar::instant(components).value();
}

/// The live state with its services, on a desktop of fakes.
class LiveState final {
public:
    explicit LiveState(const CivilComponents& now) : start{platform, wallClock(now)} {}

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
