#pragma once

#include "core/GregorianCalendar.h"
#include "platform/Clock.h"
#include "platform/UserNotificationCenter.h"

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

namespace tambrelle::fakes {

/// Keeps the requests in memory. Permission is answered when the test says so; what is due by the clock is
/// delivered when asked.
class FakeUserNotificationCenter final : public UserNotificationCenter {
public:
    struct Delivery {
        UserNotificationRequest request;
        PresentationOptions options; ///< What the delegate answered; nothing without a delegate.
    };

    explicit FakeUserNotificationCenter(const Clock& clock) : clock(clock) {}

    void setDelegate(UserNotificationCenterDelegate* next) override { delegate = next; }

    void requestAuthorization(std::function<void(bool)> onAnswer) override {
        ++authorizationRequests;
        completion = std::move(onAnswer);
    }

    void removeAllPending() override {
        ++removals;
        deliverDue();
        requests.clear();
    }

    void add(const UserNotificationRequest& request) override {
        ++additions;
        std::erase_if(requests, [&](const auto& other) { return other.identifier == request.identifier; });
        requests.push_back(request);
    }

    [[nodiscard]] std::vector<UserNotificationRequest> pending() const override { return requests; }

    /// The user's, or the desktop's, answer to the request for permission.
    void answer(bool isGranted) {
        granted = isGranted;
        if (completion)
            std::exchange(completion, nullptr)(isGranted);
    }

    /// Shows what has become due; shows nothing without permission.
    void deliverDue() {
        const Instant now = clock.now();
        const auto isDue = [now](const UserNotificationRequest& request) {
            const CalendarTrigger& at = request.trigger;
            const auto due = GregorianCalendar::instant({at.year, at.month, at.day, at.hour, at.minute, 0});
            return due && *due <= now;
        };
        const auto firstDue = std::stable_partition(requests.begin(), requests.end(), std::not_fn(isDue));
        if (granted) {
            std::for_each(firstDue, requests.end(), [this](const UserNotificationRequest& request) {
                delivered.push_back(
                    {request, delegate != nullptr ? delegate->willPresent(request) : PresentationOptions{}});
            });
        }
        requests.erase(firstDue, requests.end());
    }

    UserNotificationCenterDelegate* delegate = nullptr;
    std::vector<Delivery> delivered;
    int authorizationRequests = 0;
    int removals = 0;
    int additions = 0;

private:
    const Clock& clock;
    bool granted = false;
    std::function<void(bool)> completion;
    std::vector<UserNotificationRequest> requests;
};

} // namespace tambrelle::fakes
