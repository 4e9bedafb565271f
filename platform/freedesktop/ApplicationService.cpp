#include "platform/freedesktop/ApplicationService.h"

#include "platform/Identity.h"
#include "platform/freedesktop/BusMessages.h"
#include "platform/freedesktop/SessionBus.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <chrono>
#include <optional>

namespace tambrelle {

namespace {

const QString applicationPath = QStringLiteral("/org/tambrelle/Tambrelle");
const QString applicationInterface = QStringLiteral("org.freedesktop.Application");

constexpr std::chrono::milliseconds busPatience{1000};

/// RequestName's answer that another has the name.
constexpr uint nameExists = 3;

constexpr auto introspection = R"xml(
<interface name="org.freedesktop.Application">
  <method name="Activate"><arg name="platform_data" type="a{sv}" direction="in"/></method>
  <method name="Open">
    <arg name="uris" type="as" direction="in"/><arg name="platform_data" type="a{sv}" direction="in"/>
  </method>
  <method name="ActivateAction">
    <arg name="action_name" type="s" direction="in"/><arg name="parameter" type="av" direction="in"/>
    <arg name="platform_data" type="a{sv}" direction="in"/>
  </method>
</interface>
)xml";

/// The types that a method takes; absent for a method that there is not.
std::optional<QString> signatureOf(const QString& member) {
    if (member == QLatin1String("Activate"))
        return QStringLiteral("a{sv}");
    if (member == QLatin1String("Open"))
        return QStringLiteral("asa{sv}");
    if (member == QLatin1String("ActivateAction"))
        return QStringLiteral("sava{sv}");
    return std::nullopt;
}

} // namespace

ApplicationService::ApplicationService(const SessionBus& bus, QObject* parent)
    : QDBusVirtualObject(parent), bus(bus) {
    patience.setSingleShot(true);
    connect(&patience, &QTimer::timeout, this, &ApplicationService::settle);
}

void ApplicationService::claim() {
    patience.start(busPatience);
    join();
    connect(&bus, &SessionBus::changed, this, &ApplicationService::join);
}

void ApplicationService::join() {
    QDBusConnection connection = bus.connection();
    // On the bus before its name is, so that whoever sees the name finds the object.
    connection.registerVirtualObject(applicationPath, this);
    auto* answer =
        new QDBusPendingCallWatcher(connection.asyncCall(requestName(Identity::applicationId)), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* call) {
        call->deleteLater();
        const QDBusPendingReply<uint> reply = *call;
        if (reply.isValid() && reply.value() == nameExists && !settled)
            deferToFirst();
        else
            settle();
    });
}

void ApplicationService::settle() {
    patience.stop();
    if (settled)
        return;
    settled = true;
    emit claimed();
}

void ApplicationService::deferToFirst() {
    settled = true;
    QDBusMessage activate = QDBusMessage::createMethodCall(Identity::applicationId, applicationPath,
                                                           applicationInterface, QStringLiteral("Activate"));
    activate.setArguments({QVariantMap()});
    auto* answer = new QDBusPendingCallWatcher(
        bus.connection().asyncCall(activate, static_cast<int>(busPatience.count())), this);
    // Asked is enough: the first one may be busy, and this one is not wanted either way.
    connect(answer, &QDBusPendingCallWatcher::finished, this, &ApplicationService::deferred);
}

QString ApplicationService::introspect(const QString& /*path*/) const {
    return QString::fromLatin1(introspection);
}

bool ApplicationService::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
    if (message.interface() != applicationInterface && !message.interface().isEmpty())
        return false;
    const QString member = message.member();
    const auto signature = signatureOf(member);
    if (!signature)
        return false;
    if (message.signature() != *signature) {
        if (message.isReplyRequired())
            connection.send(invalidArguments(message));
        return true;
    }
    if (member == QLatin1String("Activate") || member == QLatin1String("Open")) {
        emit activated();
    } else {
        const QString action = message.arguments().value(0).toString();
        if (action == QLatin1String("preferences"))
            emit preferencesRequested();
        else if (action == QLatin1String("quit"))
            emit quitRequested();
    }
    if (message.isReplyRequired())
        connection.send(message.createReply());
    return true;
}

} // namespace tambrelle
