#include "platform/freedesktop/notifications/ScheduledNotificationCenter.h"

#include "core/GregorianCalendar.h"
#include "platform/Clock.h"
#include "platform/freedesktop/notifications/NotificationService.h"
#include "platform/freedesktop/notifications/WakeUp.h"

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
    const auto replaced =
        std::erase_if(requests, [&](const auto& other) { return other.identifier == request.identifier; });
    const auto time = dueTime(request);
    if (time)
        requests.push_back(request);
    // What is armed for is the earliest of the others, unless it was for the one replaced.
    if (replaced != 0)
        armWakeUp();
    else if (time && (!armed || *time < *armed))
        armWakeUpAt(*time);
}

void ScheduledNotificationCenter::deliverDue() {
    const Instant now = clock.now();
    std::optional<std::pair<Instant, UserNotificationRequest>> last;
    std::erase_if(requests, [&](const UserNotificationRequest& request) {
        const auto time = dueTime(request);
        if (!time || *time > now)
            return false;
        // Each speaks of its day as today: of several that were slept through only the last one is true.
        if (!last || *time >= last->first)
            last.emplace(*time, request);
        return true;
    });
    if (!last)
        return;
    // None of them is pending any more when the delegate is asked: it may schedule anew.
    const UserNotificationRequest& request = last->second;
    const PresentationOptions options = delegate != nullptr
                                            ? delegate->willPresent(request)
                                            : PresentationOptions{.banner = true, .sound = true};
    // A desktop's service knows no sound without a banner.
    if (options.banner)
        service.show(request, options);
}

bool ScheduledNotificationCenter::zoneMayHaveChanged() const {
    const auto zone = clock.zoneGeneration();
    return !zone || zone != armedInZone;
}

void ScheduledNotificationCenter::armWakeUp() {
    armedInZone = clock.zoneGeneration();
    std::optional<Instant> earliest;
    for (const UserNotificationRequest& request : requests) {
        const auto time = dueTime(request);
        if (time && (!earliest || *time < *earliest))
            earliest = time;
    }
    if (earliest) {
        armWakeUpAt(*earliest);
        return;
    }
    armed.reset();
    wakeUp.disarm();
}

void ScheduledNotificationCenter::armWakeUpAt(Instant instant) {
    armed = instant;
    wakeUp.arm(instant, [this] {
        // To work out when each of two weeks' mornings is due takes longer than half a minute of ticks.
        if (clock.now() < armed && !zoneMayHaveChanged())
            return;
        deliverDue();
        armWakeUp();
    });
}

} // namespace tambrelle
