#include "platform/freedesktop/PortalContrast.h"

#include "platform/freedesktop/SessionBus.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

namespace tambrelle {

namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString objectPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interface = QStringLiteral("org.freedesktop.portal.Settings");
const QString space = QStringLiteral("org.freedesktop.appearance");
const QString key = QStringLiteral("contrast");

/// What the portal says for more contrast; 0 is no preference, and what is unknown counts as that.
constexpr uint higher = 1;

} // namespace

PortalContrast::PortalContrast(const SessionBus& bus, QObject* parent)
    : ContrastPreference(parent), bus(bus) {
    portals.setWatchMode(QDBusServiceWatcher::WatchForRegistration);
    portals.addWatchedService(service);
    connect(&portals, &QDBusServiceWatcher::serviceRegistered, this, &PortalContrast::ask);
    connect(&bus, &SessionBus::changed, this, &PortalContrast::follow);
    follow();
}

void PortalContrast::follow() {
    QDBusConnection connection = bus.connection();
    portals.setConnection(connection);
    // From any sender: to be given one by its name, the toolkit would ask the bus for its owner, and wait.
    connection.connect(QString(), objectPath, interface, QStringLiteral("SettingChanged"), this,
                       SLOT(noteSetting(QDBusMessage)));
    ask();
}

void PortalContrast::ask() {
    QDBusMessage question =
        QDBusMessage::createMethodCall(service, objectPath, interface, QStringLiteral("Read"));
    question.setArguments({space, key});
    question.setAutoStartService(false);
    auto* answer = new QDBusPendingCallWatcher(bus.connection().asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* call) {
        call->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *call;
        if (reply.isValid())
            settle(reply.value().variant());
    });
}

void PortalContrast::noteSetting(const QDBusMessage& changed) {
    const QVariantList arguments = changed.arguments();
    if (arguments.size() == 3 && arguments[0] == space && arguments[1] == key)
        settle(arguments[2]);
}

void PortalContrast::settle(const QVariant& told) {
    // A variant in a variant; once more in the answer to Read.
    QVariant value = told;
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    const Contrast next = value.toUInt() == higher ? Contrast::high : Contrast::normal;
    if (next == current)
        return;
    current = next;
    emit changed();
}

} // namespace tambrelle
