#pragma once

#include "platform/freedesktop/notifications/NotificationService.h"

#include <utility>
#include <vector>

namespace tambrelle::fakes {

/// Keeps what it was given to show.
class FakeNotificationService final : public NotificationService {
public:
    void whenReachable(std::function<void()> reachable) override { waiting = std::move(reachable); }

    void show(const UserNotificationRequest& request, PresentationOptions options) override {
        shown.push_back(request);
        lastOptions = options;
    }

    [[nodiscard]] std::vector<QString> identifiers() const {
        std::vector<QString> all;
        for (const auto& request : shown)
            all.push_back(request.identifier);
        return all;
    }

    std::function<void()> waiting;
    std::vector<UserNotificationRequest> shown;
    PresentationOptions lastOptions;
};

} // namespace tambrelle::fakes
