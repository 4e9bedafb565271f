#pragma once

#include <QString>

#include <cstdint>
#include <functional>
#include <vector>

namespace tambrelle {

/// A wall-clock minute in the zone that is current when it comes; Gregorian, month 1 to 12, hour 0 to 23.
struct CalendarTrigger {
    std::int64_t year = 0;
    std::int64_t month = 0;
    std::int64_t day = 0;
    std::int64_t hour = 0;
    std::int64_t minute = 0;

    bool operator==(const CalendarTrigger&) const = default;
};

/// One notification to be shown once, with the desktop's default sound.
struct UserNotificationRequest {
    QString identifier;
    QString title;
    QString body;
    CalendarTrigger trigger;

    bool operator==(const UserNotificationRequest&) const = default;
};

/// How a notification that arrives while the application is in front is shown.
struct PresentationOptions {
    bool banner = false; ///< whether it is shown at all; without it there is no sound either
    bool sound = false;

    bool operator==(const PresentationOptions&) const = default;
};

class UserNotificationCenterDelegate {
public:
    virtual ~UserNotificationCenterDelegate() = default;

    /// Asked before a due notification is delivered.
    [[nodiscard]] virtual PresentationOptions willPresent(const UserNotificationRequest& request) = 0;
};

/// Keeps the pending notifications of the application and delivers each when its minute comes: after sleep, a
/// jump of the clock or a change of zone, within a minute of becoming due. Of several that have become due
/// meanwhile it delivers the last one: the others speak of days that are over.
class UserNotificationCenter {
public:
    virtual ~UserNotificationCenter() = default;

    /// `delegate` is not owned and outlives the centre's use of it; null takes it away.
    virtual void setDelegate(UserNotificationCenterDelegate* delegate) = 0;

    /// Asks whether notifications can be shown. `completion` is called on the main thread: with true when a
    /// notification service answers, however late; never while none does.
    virtual void requestAuthorization(std::function<void(bool granted)> completion) = 0;

    /// Forgets all that is pending; what has been delivered stays. What fell due before this call counts as
    /// delivered.
    virtual void removeAllPending() = 0;

    /// Adds a request; one with the same identifier is replaced.
    virtual void add(const UserNotificationRequest& request) = 0;

    [[nodiscard]] virtual std::vector<UserNotificationRequest> pending() const = 0;
};

} // namespace tambrelle
