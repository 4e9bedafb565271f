#pragma once

#include "platform/freedesktop/notifications/NotificationService.h"

#include <utility>
#include <vector>

namespace tambrelle::soak {

/// Answers only from the moment the test lets it, and keeps what it was given to show until it is looked at.
class FlakyNotificationService final : public NotificationService {
public:
    void whenReachable(std::function<void()> reachable) override { waiting.push_back(std::move(reachable)); }

    void show(const UserNotificationRequest& request, PresentationOptions /*options*/) override {
        shown.push_back(request);
    }

    [[nodiscard]] bool isAwaited() const { return !waiting.empty(); }

    void answer() {
        for (const auto& reachable : std::exchange(waiting, {}))
            reachable();
    }

    std::vector<UserNotificationRequest> shown;

private:
    std::vector<std::function<void()>> waiting;
};

} // namespace tambrelle::soak
