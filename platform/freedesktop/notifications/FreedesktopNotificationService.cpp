#include "platform/freedesktop/notifications/FreedesktopNotificationService.h"

#include "platform/Identity.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QStringList>
#include <QVariantMap>

#include <chrono>
#include <utility>

namespace tambrelle {

namespace {

using namespace std::chrono_literals;

constexpr QLatin1String serviceName("org.freedesktop.Notifications");

/// A service may be slow at log-in, when everything starts at once. Nothing waits for it.
constexpr std::chrono::milliseconds patience = 5min;

/// The urgency "normal", a byte.
constexpr uchar normalUrgency = 1;

/// The service decides how long it shows a notification.
constexpr int defaultExpiry = -1;

QDBusPendingCall call(const QDBusConnection& bus, const QString& method, const QVariantList& arguments = {}) {
    QDBusMessage message = QDBusMessage::createMethodCall(
        serviceName, QStringLiteral("/org/freedesktop/Notifications"), serviceName, method);
    message.setArguments(arguments);
    return bus.asyncCall(message, static_cast<int>(patience.count()));
}

/// Whether the call found nobody: the bus, not a service, has answered. After any other error the service may
/// have acted, and to ask again could show a thing twice.
bool foundNobody(const QDBusError& error) {
    switch (error.type()) {
    case QDBusError::ServiceUnknown:
    case QDBusError::Disconnected:
        return true;
    default:
        return error.name() == QLatin1String("org.freedesktop.DBus.Error.NameHasNoOwner") ||
               error.name().startsWith(QLatin1String("org.freedesktop.DBus.Error.Spawn."));
    }
}

bool isSilence(const QDBusError& error) {
    return foundNobody(error) || error.type() == QDBusError::NoReply || error.type() == QDBusError::Timeout;
}

QVariantMap hints(PresentationOptions options) {
    QVariantMap hints{{QStringLiteral("desktop-entry"), Identity::applicationId},
                      {QStringLiteral("category"), QStringLiteral("x-tambrelle.morning")},
                      {QStringLiteral("urgency"), QVariant::fromValue(normalUrgency)}};
    if (options.sound)
        hints.insert(QStringLiteral("sound-name"), QStringLiteral("message-new-instant"));
    else
        hints.insert(QStringLiteral("suppress-sound"), true);
    return hints;
}

} // namespace

FreedesktopNotificationService::FreedesktopNotificationService(const QDBusConnection& bus)
    : bus(bus), services(serviceName, bus, QDBusServiceWatcher::WatchForRegistration) {
    connect(&services, &QDBusServiceWatcher::serviceRegistered, this,
            &FreedesktopNotificationService::arrived);
}

void FreedesktopNotificationService::follow(const QDBusConnection& next) {
    bus = next;
    services.setConnection(next);
    arrived();
}

void FreedesktopNotificationService::whenReachable(std::function<void()> reachable) {
    waiting.push_back(std::move(reachable));
    ask();
}

void FreedesktopNotificationService::show(const UserNotificationRequest& request,
                                          PresentationOptions options) {
    unshown.reset();
    send({request, options});
}

void FreedesktopNotificationService::ask() {
    auto* const reply = new QDBusPendingCallWatcher(call(bus, QStringLiteral("GetCapabilities")), this);
    connect(reply, &QDBusPendingCallWatcher::finished, this, [this, reply] {
        reply->deleteLater();
        // A service that answers with an error of its own is there all the same.
        if (!reply->isError() || !isSilence(reply->error()))
            answered();
    });
}

void FreedesktopNotificationService::answered() {
    for (const auto& reachable : std::exchange(waiting, {}))
        reachable();
}

void FreedesktopNotificationService::arrived() {
    if (!waiting.empty())
        ask();
    if (unshown)
        send(*std::exchange(unshown, std::nullopt));
}

void FreedesktopNotificationService::send(const Notification& notification) {
    // Asked each time: another service, with other capabilities, may have taken over since the last morning.
    auto* const reply = new QDBusPendingCallWatcher(call(bus, QStringLiteral("GetCapabilities")), this);
    connect(reply, &QDBusPendingCallWatcher::finished, this, [this, reply, notification] {
        reply->deleteLater();
        const QDBusPendingReply<QStringList> capabilities = *reply;
        if (capabilities.isError() && foundNobody(capabilities.error())) {
            unshown = notification;
            return;
        }
        // A service that won't tell is taken to read markup, as the protocol has it for a body.
        notify(notification,
               capabilities.isError() || capabilities.value().contains(QStringLiteral("body-markup")));
    });
}

void FreedesktopNotificationService::notify(const Notification& notification, bool readsMarkup) {
    const UserNotificationRequest& request = notification.request;
    const QString body = readsMarkup ? request.body.toHtmlEscaped() : request.body;
    constexpr uint replacesNothing = 0;
    const QVariantList arguments{QStringLiteral("Tambrelle"),
                                 replacesNothing,
                                 Identity::applicationId,
                                 request.title,
                                 body,
                                 QStringList(),
                                 hints(notification.options),
                                 defaultExpiry};
    auto* const reply = new QDBusPendingCallWatcher(call(bus, QStringLiteral("Notify"), arguments), this);
    connect(reply, &QDBusPendingCallWatcher::finished, this, [this, reply, notification] {
        reply->deleteLater();
        if (reply->isError() && foundNobody(reply->error()))
            unshown = notification;
    });
}

} // namespace tambrelle
