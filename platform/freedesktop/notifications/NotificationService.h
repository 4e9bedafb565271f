#pragma once

#include "platform/UserNotificationCenter.h"

#include <functional>

namespace tambrelle {

/// What draws notifications on the user's screen. Neither call waits.
class NotificationService {
public:
    virtual ~NotificationService() = default;

    /// Calls back, on this thread, once something answers that can show notifications; this may be long
    /// after, when it starts late.
    virtual void whenReachable(std::function<void()> reachable) = 0;

    /// Shows a notification, now or, when nothing is there to show it, as soon as there is. Of those that
    /// wait only the last one is kept, since a morning makes the one before it stale.
    virtual void show(const UserNotificationRequest& request, PresentationOptions options) = 0;
};

} // namespace tambrelle
