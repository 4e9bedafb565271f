#include "platform/freedesktop/notifications/ScheduledNotificationCenter.h"

#include "core/GregorianCalendar.h"
#include "platform/Clock.h"
#include "platform/freedesktop/notifications/NotificationService.h"
#include "platform/freedesktop/notifications/WakeUp.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace tambrelle {

namespace {

/// When the trigger's minute begins in the zone that is current now; a minute that this zone skips is made up
/// for right after. Absent for a time that no clock shows.
std::optional<Instant> dueTime(const UserNotificationRequest& request) {
    const CalendarTrigger& at = request.trigger;
    return GregorianCalendar::nextInstant({at.year, at.month, at.day, at.hour, at.minute, 0});
}

} // namespace

ScheduledNotificationCenter::ScheduledNotificationCenter(const Clock& clock, WakeUp& wakeUp,
                                                         NotificationService& service)
    : clock(clock), wakeUp(wakeUp), service(service) {}

ScheduledNotificationCenter::~ScheduledNotificationCenter() {
    wakeUp.disarm();
}

void ScheduledNotificationCenter::requestAuthorization(std::function<void(bool)> completion) {
    service.whenReachable([completion = std::move(completion)] { completion(true); });
}

void ScheduledNotificationCenter::removeAllPending() {
    // The first to notice that the clock has moved on may be the caller, who then replaces everything: a
    // morning that was slept through would be lost.
    deliverDue();
    requests.clear();
    armWakeUp();
}

void ScheduledNotificationCenter::add(const UserNotificationRequest& request) {
    std::erase_if(requests, [&](const auto& other) { return other.identifier == request.identifier; });
    if (!dueTime(request))
        return;
    requests.push_back(request);
    armWakeUp();
}

void ScheduledNotificationCenter::deliverDue() {
    const Instant now = clock.now();
    std::vector<std::pair<Instant, UserNotificationRequest>> due;
    std::erase_if(requests, [&](const UserNotificationRequest& request) {
        const auto time = dueTime(request);
        if (!time || *time > now)
            return false;
        due.emplace_back(*time, request);
        return true;
    });
    std::ranges::stable_sort(due, {}, &std::pair<Instant, UserNotificationRequest>::first);
    // None of them is pending any more when the delegate is asked: it may schedule anew.
    for (const auto& [time, request] : due) {
        const PresentationOptions options = delegate != nullptr
                                                ? delegate->willPresent(request)
                                                : PresentationOptions{.banner = true, .sound = true};
        if (options.banner || options.sound)
            service.show(request, options);
    }
}

void ScheduledNotificationCenter::armWakeUp() {
    std::optional<Instant> earliest;
    for (const UserNotificationRequest& request : requests) {
        const auto time = dueTime(request);
        if (time && (!earliest || *time < *earliest))
            earliest = time;
    }
    if (!earliest) {
        wakeUp.disarm();
        return;
    }
    wakeUp.arm(*earliest, [this] {
        deliverDue();
        armWakeUp();
    });
}

} // namespace tambrelle
