#include "bench/baseline/BaselineItem.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCall>
#include <QDBusVariant>

namespace tambrelle::baseline {

namespace {

const QString watcher = QStringLiteral("org.kde.StatusNotifierWatcher");

} // namespace

QString BaselineItem::introspect(const QString& /*path*/) const {
    return QStringLiteral("<interface name=\"org.kde.StatusNotifierItem\"/>");
}

QVariantMap BaselineItem::properties() {
    return {
        {QStringLiteral("Category"), QStringLiteral("ApplicationStatus")},
        {QStringLiteral("Id"), QStringLiteral("tambrelle-baseline")},
        {QStringLiteral("Title"), QStringLiteral("🌫️ 23 Brumaire · Tridi · 5:00")},
        {QStringLiteral("Status"), QStringLiteral("Active")},
        {QStringLiteral("IconName"), QStringLiteral("x-office-calendar")},
        {QStringLiteral("ItemIsMenu"), false},
        {QStringLiteral("Menu"), QVariant::fromValue(QDBusObjectPath(QStringLiteral("/NO_DBUSMENU")))},
    };
}

bool BaselineItem::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
    QDBusMessage reply = message.createReply();
    if (message.member() == QLatin1String("GetAll")) {
        reply = message.createReply(QVariant(properties()));
    } else if (message.member() == QLatin1String("Get")) {
        const QVariant value = properties().value(message.arguments().value(1).toString());
        reply = value.isValid() ? message.createReply(QVariant::fromValue(QDBusVariant(value)))
                                : message.createErrorReply(QDBusError::UnknownProperty,
                                                           QStringLiteral("No such property"));
    }
    connection.send(reply);
    return true;
}

void BaselineItem::registerWithBar() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.registerVirtualObject(path, this);
    QDBusMessage call = QDBusMessage::createMethodCall(watcher, QStringLiteral("/StatusNotifierWatcher"),
                                                       watcher, QStringLiteral("RegisterStatusNotifierItem"));
    call.setArguments({path});
    bus.asyncCall(call);
}

} // namespace tambrelle::baseline
