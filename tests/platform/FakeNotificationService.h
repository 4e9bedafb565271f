#pragma once

#include "platform/freedesktop/notifications/NotificationService.h"

#include <utility>
#include <vector>

namespace tambrelle::fakes {

/// Answers when the test lets it, and keeps what it was given to show.
class FakeNotificationService final : public NotificationService {
public:
    void whenReachable(std::function<void()> reachable) override { waiting.push_back(std::move(reachable)); }

    void show(const UserNotificationRequest& request, PresentationOptions options) override {
        shown.push_back(request);
        lastOptions = options;
    }

    [[nodiscard]] bool isAwaited() const { return !waiting.empty(); }

    void answer() {
        for (const auto& reachable : std::exchange(waiting, {}))
            reachable();
    }

    [[nodiscard]] std::vector<QString> identifiers() const {
        std::vector<QString> all;
        for (const auto& request : shown)
            all.push_back(request.identifier);
        return all;
    }

    std::vector<UserNotificationRequest> shown;
    PresentationOptions lastOptions;

private:
    std::vector<std::function<void()>> waiting;
};

} // namespace tambrelle::fakes
