#pragma once

#include "app/PreferenceKeys.h"
#include "tests/fakes/FakePlatform.h"
#include "tests/support/EventLoop.h"
#include "tests/support/LaunchedState.h"
#include "tests/support/LocalInstant.h"
#include "tests/support/Printers.h"
#include "tests/support/ScopedTimeZone.h"

#include <gtest/gtest.h>
#include <memory>

namespace tambrelle::test {

/// A calendar manager with its two services on a desktop of fakes in Europe/Paris, launched when the test
/// says so; the application has run before, with chimes on.
class LiveState : public ::testing::Test {
protected:
    LiveState() {
        platform.clock.set(noon);
        platform.defaults.values.insert(PreferenceKeys::hasLaunchedBefore, true);
        platform.defaults.values.insert(PreferenceKeys::soundEnabled, true);
        platform.defaults.values.insert(PreferenceKeys::notificationsConfigured, true);
        platform.defaults.values.insert(PreferenceKeys::notificationsEnabled, true);
        platform.defaults.values.insert(PreferenceKeys::notificationHour, 8LL);
        platform.resources.add(QStringLiteral("marseillaise.mp3"));
    }

    CalendarManager& launch() {
        end();
        launched = std::make_unique<LaunchedState>(platform);
        sound = &launched->sound;
        notifications = &launched->notifications;
        calendar = &launched->calendar;
        return *calendar;
    }
    CalendarManager& launchAt(Instant instant) {
        platform.clock.set(instant);
        return launch();
    }

    void end() {
        calendar = nullptr;
        notifications = nullptr;
        sound = nullptr;
        launched.reset();
    }

    /// One firing of the timer at this instant, with what it queues.
    void tickAt(Instant instant) {
        platform.clock.set(instant);
        platform.timer.fire();
        runQueued();
    }

    [[nodiscard]] std::size_t chimes() const { return platform.audioPlayer.played.size(); }

    ScopedTimeZone zone{"Europe/Paris"};
    /// 23 Brumaire an CCXXXIV, 5:00:00.
    const Instant noon = local({2025, 11, 15, 12, 0, 0});
    fakes::FakePlatform platform;
    /// Null until the launch, and after the end.
    SoundManager* sound = nullptr;
    NotificationManager* notifications = nullptr;
    CalendarManager* calendar = nullptr;

private:
    std::unique_ptr<LaunchedState> launched;
};

/// Counts the announcements of an object.
class Announcements final {
public:
    explicit Announcements(const ObservableObject& object) {
        QObject::connect(&object, &ObservableObject::objectWillChange, &context, [this] { ++count; });
    }

    int count = 0;

private:
    QObject context;
};

} // namespace tambrelle::test
