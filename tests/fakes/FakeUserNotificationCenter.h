#pragma once

#include "core/GregorianCalendar.h"
#include "platform/Clock.h"
#include "platform/UserNotificationCenter.h"

#include <functional>
#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace tambrelle::fakes {

/// Keeps the requests in memory. Permission is answered when the test says so; what is due by the clock is
/// delivered when the test says so, or before everything is removed.
class FakeUserNotificationCenter final : public UserNotificationCenter {
public:
    struct Delivery {
        UserNotificationRequest request;
        PresentationOptions options;
    };

    explicit FakeUserNotificationCenter(const Clock& clock) : clock(clock) {}

    void setDelegate(UserNotificationCenterDelegate* next) override { delegate = next; }

    void requestAuthorization(std::function<void(bool)> onAnswer) override {
        ++authorizationRequests;
        completions.push_back(std::move(onAnswer));
    }

    void removeAllPending() override {
        ++removals;
        deliverDue();
        requests.clear();
    }

    void add(const UserNotificationRequest& request) override {
        ++additions;
        std::erase_if(requests, [&](const auto& other) { return other.identifier == request.identifier; });
        if (dueTime(request))
            requests.push_back(request);
    }

    [[nodiscard]] std::vector<UserNotificationRequest> pending() const override { return requests; }

    /// The user's, or the desktop's, answer to the requests for permission.
    void answer(bool isGranted) {
        for (const auto& completion : std::exchange(completions, {}))
            completion(isGranted);
    }

    /// Shows the last of what has become due, unless the delegate wants no banner.
    void deliverDue() {
        const Instant now = clock.now();
        std::multimap<Instant, UserNotificationRequest> due;
        for (const UserNotificationRequest& request : requests) {
            if (const auto time = dueTime(request); time && *time <= now)
                due.emplace(*time, request);
        }
        if (due.empty())
            return;
        // Before the delegate is asked, which may schedule anew.
        for (const auto& [time, request] : due)
            std::erase(requests, request);
        const UserNotificationRequest& last = due.rbegin()->second;
        const PresentationOptions options = delegate != nullptr
                                                ? delegate->willPresent(last)
                                                : PresentationOptions{.banner = true, .sound = true};
        if (options.banner)
            delivered.push_back({last, options});
    }

    UserNotificationCenterDelegate* delegate = nullptr;
    std::vector<Delivery> delivered;
    int authorizationRequests = 0;
    int removals = 0;
    int additions = 0;

private:
    /// Absent for a time that no clock shows; a minute that the clock skips comes right after.
    static std::optional<Instant> dueTime(const UserNotificationRequest& request) {
        const CalendarTrigger& at = request.trigger;
        return GregorianCalendar::nextInstant({at.year, at.month, at.day, at.hour, at.minute, 0});
    }

    const Clock& clock;
    std::vector<std::function<void(bool)>> completions;
    std::vector<UserNotificationRequest> requests;
};

} // namespace tambrelle::fakes
