#pragma once

#include "platform/freedesktop/notifications/NotificationService.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>

#include <optional>
#include <vector>

namespace tambrelle {

/// The session's org.freedesktop.Notifications (the desktop notifications protocol 1.2). All calls are
/// asynchronous, and no error is reported to anyone.
class FreedesktopNotificationService final : public QObject, public NotificationService {
public:
    explicit FreedesktopNotificationService(const QDBusConnection& bus);

    /// Turns to another connection, and there again to what waits for a service.
    void follow(const QDBusConnection& next);

    void whenReachable(std::function<void()> reachable) override;
    void show(const UserNotificationRequest& request, PresentationOptions options) override;

private:
    struct Notification {
        UserNotificationRequest request;
        PresentationOptions options;
    };

    void ask();
    void answered();
    void arrived();
    void send(const Notification& notification);
    void notify(const Notification& notification, bool readsMarkup);

    QDBusConnection bus;
    QDBusServiceWatcher services;
    std::vector<std::function<void()>> waiting;
    std::optional<Notification> unshown;
};

} // namespace tambrelle
