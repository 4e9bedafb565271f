#pragma once

#include "app/ObservableObject.h"
#include "app/Published.h"
#include "platform/UserNotificationCenter.h"

#include <cstdint>

namespace tambrelle {

class Clock;
class UserDefaults;
struct RevolutionaryDate;

/// What the morning notification needs of the desktop.
struct NotificationServices {
    const Clock& clock;
    UserDefaults& defaults;
    UserNotificationCenter& center;
};

/// Keeps one notification scheduled for each of the coming mornings, at the time that the user chose.
class NotificationManager final : public ObservableObject, private UserNotificationCenterDelegate {
    Q_OBJECT

public:
    /// Days scheduled ahead, today included.
    static constexpr std::int64_t horizon = 14;

    explicit NotificationManager(const NotificationServices& services);
    ~NotificationManager() override;

    /// Whether the morning notification is wanted.
    [[nodiscard]] bool enabled() const { return publishedEnabled.get(); }
    /// Hour of the notification in civil time, 0 to 23; a damaged store may hold anything, which schedules
    /// nothing.
    [[nodiscard]] std::int64_t hour() const { return publishedHour.get(); }
    /// Minute of the notification, 0 to 59, with the same reservation.
    [[nodiscard]] std::int64_t minute() const { return publishedMinute.get(); }

    /// Each announces the change, stores the value and schedules anew.
    void setEnabled(bool value);
    void setHour(std::int64_t value);
    void setMinute(std::int64_t value);

    /// Asks for permission and schedules when it is granted; a refusal is not reported.
    void start();

    /// Replaces all pending notifications by those of the coming mornings.
    void reschedule();

private:
    [[nodiscard]] PresentationOptions willPresent(const UserNotificationRequest& request) override;

    NotificationServices services;
    Published<bool> publishedEnabled;
    Published<std::int64_t> publishedHour;
    Published<std::int64_t> publishedMinute;
};

/// The body of the notification for `date`: its daily item, or its festival. Stops the program on a month
/// outside 1 to 13.
[[nodiscard]] QString morningNotificationBody(const RevolutionaryDate& date);

} // namespace tambrelle
