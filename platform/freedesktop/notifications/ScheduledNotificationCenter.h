#pragma once

#include "core/Instant.h"
#include "platform/UserNotificationCenter.h"

#include <cstdint>
#include <optional>

namespace tambrelle {

class Clock;
class NotificationService;
class WakeUp;

/// Keeps the requests until the wall clock shows their minute. A desktop's notification service knows no
/// schedule, so that this process keeps the time.
class ScheduledNotificationCenter final : public UserNotificationCenter {
public:
    /// None is owned; all outlive this object.
    ScheduledNotificationCenter(const Clock& clock, WakeUp& wakeUp, NotificationService& service);
    ~ScheduledNotificationCenter() override;

    ScheduledNotificationCenter(const ScheduledNotificationCenter&) = delete;
    ScheduledNotificationCenter& operator=(const ScheduledNotificationCenter&) = delete;

    void setDelegate(UserNotificationCenterDelegate* next) override { delegate = next; }
    /// `completion` is called with true once a service answers, which may be long after; with false never,
    /// since a service may always still start.
    void requestAuthorization(std::function<void(bool granted)> completion) override;
    void removeAllPending() override;
    void add(const UserNotificationRequest& request) override;
    [[nodiscard]] std::vector<UserNotificationRequest> pending() const override { return requests; }

private:
    void deliverDue();
    [[nodiscard]] bool zoneMayHaveChanged() const;
    void armWakeUp();
    void armWakeUpAt(Instant instant);

    const Clock& clock;
    WakeUp& wakeUp;
    NotificationService& service;
    UserNotificationCenterDelegate* delegate = nullptr;
    std::vector<UserNotificationRequest> requests;
    std::optional<Instant> armed;             ///< when the earliest of them is due
    std::optional<std::uint64_t> armedInZone; ///< the generation of the zone in which that was worked out
};

} // namespace tambrelle
